import QtQuick
import Tavi

// Darkens the window under a turning wheel while something takes long, and holds all input off.
Rectangle {
    id: overlay

    View.tag: 8989
    visible: ViewManager.isSpinnerVisible
    color: Qt.rgba(0, 0, 0, 0.7)

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
            x: (overlay.width - width) / 2
            y: overlay.height / 2 - 22
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
