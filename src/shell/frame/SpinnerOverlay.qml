import QtQuick
import QtQuick.Templates as T
import Tavi

// Darkens the window under a turning wheel while something takes long, and holds all input off but that of a message
// that comes up over it.
T.Popup {
    id: overlay

    width: parent.width
    height: parent.height
    z: 1
    modal: true
    dim: false
    focus: true
    closePolicy: T.Popup.NoAutoClose
    visible: ViewManager.isSpinnerVisible
    Component.onCompleted: contentItem.parent.Accessible.name = qsTrId("pleaseWait")
    onClosed: ViewManager.restoreFocus()

    contentItem: Rectangle {
        id: veil

        View.tag: 8989
        focus: true
        color: Qt.rgba(0, 0, 0, 0.7)
        Keys.onPressed: event => event.accepted = true

        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
            preventStealing: true
            onWheel: wheel => wheel.accepted = true
        }

        Repeater {
            model: 12

            Rectangle {
                required property int index

                width: 4
                height: 12
                radius: 2
                x: (veil.width - width) / 2
                y: veil.height / 2 - 22
                opacity: (index + 1) / 12
                color: "white"
                transform: Rotation {
                    origin.x: 2
                    origin.y: 22
                    angle: 30 * index + turn.angle
                }
            }
        }

        NumberAnimation {
            id: turn

            property real angle

            target: turn
            property: "angle"
            from: 0
            to: 360
            duration: 1000
            loops: Animation.Infinite
            running: overlay.visible
        }
    }
}
