import QtQuick
import Tavi

// A row of the settings, to be tapped: a title, and at its end what it is at.
Pressable {
    id: row

    property Component mark

    width: parent.width
    height: Math.max(Theme.touchTarget, label.implicitHeight + 16)
    leftPadding: 16
    rightPadding: 16
    background: Rectangle {
        radius: 12
        color: row.down ? Qt.darker(Theme.background, 1.2) : row.isHovered ? Qt.darker(Theme.background, 1.06) : "transparent"
    }
    contentItem: Item {
        Label {
            id: label

            width: parent.width - 64
            anchors.verticalCenter: parent.verticalCenter
            text: row.text
            Accessible.ignored: true
        }
        Loader {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            sourceComponent: row.mark
        }
    }

    FocusRing {
        control: row
    }
}
