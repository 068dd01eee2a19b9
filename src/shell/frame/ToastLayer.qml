import QtQuick
import QtQuick.Templates as T
import Tavi

// A short message near the foot of the window, over all that is open in it. It fades by itself and goes at a tap,
// which, if the mouse makes it and the toast offers nothing itself, also does what it would do without it.
T.Popup {
    id: toast

    readonly property int accessibleRole: Accessible.AlertMessage

    function show() {
        if (!ViewManager.toastText)
            return life.stop();
        contentItem.parent.Accessible.name = ViewManager.toastText;
        open();
        life.restart();
    }

    x: (parent.width - width) / 2
    y: parent.height - 120
    z: 2
    width: 0.9 * parent.width
    height: Math.max(40, contentItem.implicitHeight)
    closePolicy: T.Popup.NoAutoClose
    Component.onCompleted: show()
    onOpened: ViewManager.announce(contentItem.parent)
    onClosed: ViewManager.restoreFocus()

    background: Rectangle {
        objectName: "toast"
        radius: 10
        color: Qt.alpha(Theme.label, 0.8)
    }
    // Of a popup's touches the background gets none.
    contentItem: MouseArea {
        implicitHeight: Math.max(label.implicitHeight + 12, action.visible ? action.height : 0)
        onPressed: mouse => {
            mouse.accepted = action.visible;
            if (!mouse.accepted)
                ViewManager.hideToast();
        }
        onClicked: ViewManager.hideToast()

        Text {
            id: label

            objectName: "toastLabel"
            x: 12
            width: parent.width - 2 * x - (action.visible ? action.width : 0)
            height: parent.height
            text: ViewManager.toastText
            textFormat: Text.PlainText
            font: ViewManager.toastFont
            color: Theme.groupedBackground
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
        }
        IconButton {
            id: action

            objectName: "toastAction"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: text
            text: ViewManager.toastActionTitle
            font: Theme.heavy(14)
            groundColor: Theme.label
            tintColor: Theme.legible(Theme.strongYellow, groundColor)
            onClicked: ViewManager.chooseToastAction()
        }
    }

    SequentialAnimation {
        id: life

        PropertyAction {
            target: toast
            property: "opacity"
            value: 1
        }
        PauseAnimation {
            duration: action.visible ? 6000 : 3000
        }
        NumberAnimation {
            target: toast
            property: "opacity"
            to: 0
            duration: 2000
            easing.type: Easing.OutQuad
        }
        ScriptAction {
            script: ViewManager.hideToast()
        }
    }

    // Each one comes anew, so that it is also told anew.
    Connections {
        target: ViewManager
        function onToastChanged() {
            toast.close();
            toast.show();
        }
    }
}
