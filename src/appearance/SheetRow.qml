import QtQuick
import Tavi

// A row of a sheet to be tapped: an icon and what it does. The arrow keys lead from one to the next.
Pressable {
    id: row

    property string iconText

    width: parent.width
    height: 56
    opacity: enabled ? 1 : 0.4
    Keys.onDownPressed: nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)
    Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    background: Rectangle {
        color: Theme.label
        opacity: row.down ? 0.12 : row.isHovered ? 0.05 : 0
    }
    contentItem: Row {
        leftPadding: 24
        spacing: 24

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            text: row.iconText
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: row.text
            font: Theme.book(16)
            color: Theme.label
        }
    }

    FocusRing {
        control: row
        ground: Theme.groupedBackground
    }
}
