import QtQuick
import Tavi

// The ring around what the keyboard acts on, for those who go by key.
Rectangle {
    property Item control
    property color ground: Theme.background

    objectName: "focusRing"
    anchors.fill: parent
    anchors.margins: 1
    visible: control && control.activeFocus && KeyboardUse.isCurrent
    color: "transparent"
    border.width: 2
    // Worked out for the one that is seen only, of which a page has many.
    border.color: visible ? Theme.legible(Theme.focus, ground) : "transparent"
}
