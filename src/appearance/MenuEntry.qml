import QtQuick
import QtQuick.Templates as T
import Tavi

// A line of a ContextMenu.
T.MenuItem {
    id: entry

    implicitWidth: 240
    implicitHeight: Theme.touchTarget
    opacity: enabled ? 1 : 0.4
    Accessible.role: Accessible.MenuItem
    Accessible.name: text

    background: Rectangle {
        color: Theme.label
        opacity: entry.down || entry.highlighted ? 0.12 : 0
    }
    contentItem: Text {
        leftPadding: 16
        text: entry.text
        font: Theme.book(16)
        color: Theme.label
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
