import QtQuick
import QtQuick.Templates as T
import Tavi

// A message in the middle of the window, with its buttons under it.
Item {
    id: page

    required property AlertController controller

    T.Popup {
        id: popup

        parent: page
        x: (page.width - width) / 2
        y: page.controller.isActionSheet ? page.height - height - 16 : (page.height - height) / 2
        width: Math.min(320, page.width - 48)
        height: content.implicitHeight + 32
        padding: 16
        modal: true
        dim: true
        focus: true
        visible: true
        closePolicy: T.Popup.NoAutoClose

        T.Overlay.modal: Rectangle {
            color: Qt.rgba(0, 0, 0, 0.5)
        }
        background: Rectangle {
            radius: 14
            color: Theme.groupedBackground
        }
        contentItem: Column {
            id: content

            spacing: 12
            Accessible.role: Accessible.Dialog
            Accessible.name: page.controller.title
            Keys.onEscapePressed: page.controller.cancel()

            Text {
                width: parent.width
                visible: text
                text: page.controller.title
                font: Theme.heavy(18)
                color: Theme.label
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
            }
            Text {
                width: parent.width
                visible: text
                text: page.controller.message
                font: Theme.book(14)
                color: Theme.label
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
            }
            Repeater {
                model: page.controller.actionTitles

                IconButton {
                    required property int index
                    required property string modelData

                    objectName: "alertAction" + index
                    width: content.width
                    text: modelData
                    font: Theme.heavy(16)
                    tintColor: Theme.accentText
                    focus: index === 0
                    onClicked: page.controller.choose(index)
                }
            }
        }
    }
}
