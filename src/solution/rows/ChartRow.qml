import QtQuick
import QtQuick.Window

// A row of charts. They start half a second after the row has come into sight, each time it does.
TableRow {
    id: row

    readonly property bool isInSight: Window.window !== null && table !== null && y + height > table.contentY && y < table.contentY + table.height

    signal started

    height: rowHeight.at(viewWidth)

    Timer {
        interval: 500
        running: row.isInSight
        onTriggered: row.started()
    }
}
