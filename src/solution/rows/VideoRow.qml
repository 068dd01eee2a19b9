import QtQuick

// The row of tutorial videos. Without players it takes no place.
Item {
    required property var content
    required property var rowHeight
    required property real viewWidth

    height: 0
}
