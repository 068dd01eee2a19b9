import QtQuick
import Tavi

// One picture of the icon font, such as Icons.menu.
Text {
    property int size: 24

    width: size
    height: size
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    font: Theme.icons(size)
    color: Theme.label
    Accessible.ignored: true
}
