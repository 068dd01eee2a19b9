import QtQuick
import Tavi

// Short messages near the foot of the window; later ones stand on top of earlier ones.
Item {
    id: toasts

    Connections {
        target: ViewManager
        function onToastRequested(text) {
            toast.createObject(toasts, {
                    "text": text
                });
        }
    }

    Component {
        id: toast

        Rectangle {
            id: box

            required property string text

            objectName: "toast"
            width: 0.9 * toasts.width
            height: Math.max(40, label.implicitHeight + 12)
            x: (toasts.width - width) / 2
            y: toasts.height - 120
            radius: 10
            color: Qt.alpha(Theme.label, 0.8)
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text

            Text {
                id: label

                anchors.fill: parent
                anchors.leftMargin: 12
                anchors.rightMargin: 12
                text: box.text
                font: ViewManager.toastFont
                color: Theme.groupedBackground
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight
            }

            SequentialAnimation on opacity  {
                PauseAnimation {
                    duration: 3000
                }
                NumberAnimation {
                    to: 0
                    duration: 2000
                    easing.type: Easing.OutQuad
                }
                ScriptAction {
                    script: box.destroy()
                }
            }
        }
    }
}
