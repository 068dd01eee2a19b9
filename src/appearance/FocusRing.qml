import QtQuick
import Tavi

// The ring around the control that the keyboard acts on.
Rectangle {
    property Item control
    property color ground: Theme.background

    anchors.fill: parent
    anchors.margins: 1
    visible: control && control.visualFocus
    color: "transparent"
    border.width: 2
    border.color: Theme.legible(Theme.focus, ground)
}
