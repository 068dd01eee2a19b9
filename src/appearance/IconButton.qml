import QtQuick
import QtQuick.Templates as T
import Tavi

// A flat button of a toolbar: an icon or, without one, its title.
T.AbstractButton {
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
    hoverEnabled: false
    font: Theme.medium(14)
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.checkable: isOn
    Accessible.checked: isOn

    // A finger hovers over nothing; the control's own hovering would stay on where it last touched.
    HoverHandler {
        id: pointer

        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    }

    background: Rectangle {
        radius: height / 2
        color: control.tintColor
        opacity: control.down ? 0.2 : control.isOn ? 0.14 : pointer.hovered ? 0.08 : 0
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
