import QtQuick
import Tavi

// Rows that belong together, on a card under their heading.
Column {
    id: group

    property alias title: heading.text
    default property alias rows: card.data

    width: parent.width
    spacing: 8

    Heading {
        id: heading

        x: 16
        width: parent.width - 32
        font: Theme.heavy(16)
    }
    Rectangle {
        width: parent.width
        height: card.height
        color: Theme.background
        radius: 12

        Column {
            id: card

            width: parent.width
        }
    }
}
