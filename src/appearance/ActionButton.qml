import QtQuick
import Tavi

// A button with a title or an icon on a coloured, rounded ground, which darkens at once while it is pressed.
// Styling writes its colours and its shadow into the attached view.
Pressable {
    id: control

    property string iconText
    property color groundColor: View.backgroundColor
    property color iconColor: View.tintColor
    property int radius: 8

    View.kind: View.Button

    implicitWidth: Math.max(Theme.touchTarget, contentItem.implicitWidth + leftPadding + rightPadding)
    implicitHeight: Theme.touchTarget
    leftPadding: 12
    rightPadding: 12
    opacity: View.alpha * (enabled ? 1 : 0.4)
    font: Theme.medium(22)

    background: Item {
        Shadow {
            anchors.fill: parent
            anchors.margins: -extent
            shadow: control.View.shadow
            cornerRadius: control.radius
        }
        Rectangle {
            anchors.fill: parent
            radius: control.radius
            color: Qt.darker(control.groundColor, control.down ? 1.3 : control.isHovered ? 1.06 : 1)
        }
        FocusRing {
            control: control
            ground: control.groundColor
            radius: control.radius
        }
    }
    contentItem: Text {
        text: control.iconText || control.text
        font: control.iconText ? Theme.icons(24) : control.font
        color: Theme.legible(control.iconText ? control.iconColor : control.View.titleColor, control.groundColor)
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
}
