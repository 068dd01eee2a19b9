import QtQuick
import QtQuick.Window
import Tavi

// A row of charts. They start half a second after the row has come into sight, each time it does.
TableRow {
    id: row

    readonly property bool isInSight: Window.window !== null && table !== null && y + height > table.contentY && y < table.contentY + table.height

    height: rowHeight.at(viewWidth)

    ChartView {
        id: chart

        anchors.fill: parent
        charts: row.content.chartData // qmllint disable type
        isStill: Theme.isMotionReduced
    }

    Timer {
        interval: 500
        running: row.isInSight
        onTriggered: chart.start()
    }
}
