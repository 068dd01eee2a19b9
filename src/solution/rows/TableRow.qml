import QtQuick
import Tavi

// What all rows of the table share: their place in it, the ring when the keyboard acts on them, the mark of the one
// that is read aloud, their menu.
Item {
    id: row

    required property int index
    required property var content
    required property var rowHeight
    required property real viewWidth
    property bool isRead: false // Aloud, at the moment.
    readonly property ListView table: ListView.view as ListView

    signal menuRequested(point place)

    // The arrows to the left and to the right, if the row has a use for them.
    function pressed(key: int) {
    }

    Accessible.focusable: true
    Accessible.focused: activeFocus

    TapHandler {
        gesturePolicy: TapHandler.DragThreshold
        onLongPressed: row.menuRequested(point.position)
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: eventPoint => row.menuRequested(eventPoint.position)
    }
    Rectangle {
        objectName: "readingMark"
        anchors.fill: parent
        visible: row.isRead
        z: 1
        color: Qt.alpha(Theme.accentText, 0.08)

        Rectangle {
            width: 4
            height: parent.height
            color: Theme.accentText
        }
    }
    FocusRing {
        control: row
        z: 1
    }
}
