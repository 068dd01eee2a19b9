import QtQuick
import Tavi

// The picture of a switch.
Rectangle {
    required property bool isOn

    width: 44
    height: 26
    radius: 13
    color: isOn ? Theme.accentText : Theme.legible(Theme.secondaryGray, Theme.background)

    Rectangle {
        x: parent.isOn ? parent.width - width - 3 : 3
        y: 3
        width: 20
        height: 20
        radius: 10
        color: Theme.background
    }
}
