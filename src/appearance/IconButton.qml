import QtQuick
import Tavi

// A flat button of a toolbar: an icon or, without one, its title.
Pressable {
    id: control

    property string iconText
    property color tintColor: View.tintColor
    property color groundColor: Theme.background
    property bool isOn: false

    View.kind: View.IconButton

    implicitWidth: Math.max(Theme.touchTarget, contentItem.implicitWidth + leftPadding + rightPadding)
    implicitHeight: Theme.touchTarget
    leftPadding: 12
    rightPadding: 12
    font: Theme.medium(14)
    isCheckable: isOn
    isChecked: isOn

    background: Rectangle {
        radius: height / 2
        color: control.tintColor
        opacity: control.down ? 0.2 : control.isOn ? 0.14 : control.isHovered ? 0.08 : 0
    }
    contentItem: Text {
        text: control.iconText || control.text
        font: control.iconText ? Theme.icons(24) : control.font
        color: control.tintColor
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    FocusRing {
        control: control
        ground: control.groundColor
        radius: height / 2
    }
}
