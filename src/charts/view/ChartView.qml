import QtQuick
import QtQuick.Templates as Templates
import Tavi

// A row of charts that answers to finger, pointer and keyboard: points are marked, a tree is scrolled, an animation
// is played again.

// qmllint disable alias
Item {
    id: view

    property alias charts: chart.charts
    // Everything stands at once as it stays.
    property bool isStill: false
    // A ring is for those who go by key.
    property bool isKeyed: false

    // From the beginning, each time the row comes into sight.
    function start() {
        clock.stop();
        chart.progress = isStill || chart.duration === 0 ? 1 : 0;
        if (chart.progress === 0)
            clock.start();
    }

    activeFocusOnTab: chart.hasPoints || tree.isWide || activeFocus
    Accessible.role: Accessible.Chart
    Accessible.name: chart.words
    Accessible.description: chart.markedWords
    Accessible.focusable: activeFocusOnTab
    Keys.onRightPressed: event => event.accepted = chart.markNextPoint(1) || tree.scrollBy(48, 0)
    Keys.onLeftPressed: event => event.accepted = chart.markNextPoint(-1) || tree.scrollBy(-48, 0)
    Keys.onDownPressed: event => event.accepted = chart.markNextSeries(1) || tree.scrollBy(0, 48)
    Keys.onUpPressed: event => event.accepted = chart.markNextSeries(-1) || tree.scrollBy(0, -48)
    Keys.onEscapePressed: event => {
        event.accepted = chart.markedWords !== "";
        chart.unmark();
    }
    Keys.onReleased: isKeyed = true
    onActiveFocusChanged: {
        isKeyed = false;
        if (!activeFocus)
            chart.unmark();
    }

    ChartItem {
        id: chart

        objectName: "chart"
        anchors.fill: parent
        progress: view.isStill ? 1 : 0
        scroll: Qt.point(tree.contentX, tree.contentY)
        Accessible.ignored: true
    }
    NumberAnimation {
        id: clock

        target: chart
        property: "progress"
        from: 0
        to: 1
        duration: chart.duration
    }

    TapHandler {
        enabled: chart.hasPoints
        onTapped: eventPoint => {
            view.forceActiveFocus(Qt.MouseFocusReason);
            chart.markAt(eventPoint.position);
        }
    }
    HoverHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad | PointerDevice.Stylus
        enabled: chart.hasPoints
        onPointChanged: if (hovered)
            chart.markAt(point.position)
        onHoveredChanged: if (!hovered)
            chart.unmark()
    }

    Flickable {
        id: tree

        readonly property bool isWide: contentWidth > width || contentHeight > height

        function scrollBy(x, y) {
            if (!isWide)
                return false;
            contentX = Math.max(0, Math.min(contentWidth - width, contentX + x));
            contentY = Math.max(0, Math.min(contentHeight - height, contentY + y));
            return true;
        }
        // To the root.
        function open() {
            contentX = (contentWidth - width) / 2;
            contentY = 0;
        }

        objectName: "tree"
        x: chart.frame.x
        y: chart.frame.y
        width: chart.frame.width
        height: chart.frame.height
        contentWidth: chart.contentSize.width
        contentHeight: chart.contentSize.height
        interactive: isWide
        visible: isWide
        boundsBehavior: Flickable.StopAtBounds
        onContentWidthChanged: open()
        onWidthChanged: open()
    }
    ScrollThumb {
        flickable: tree
        orientation: Qt.Horizontal
        anchors.bottom: tree.bottom
        anchors.bottomMargin: 3
    }
    FocusRing {
        anchors.fill: tree
        radius: 12
        visible: view.activeFocus && view.isKeyed
    }

    // The chart draws it.
    Templates.AbstractButton {
        id: replay

        // It reaches beyond what is drawn, to the size of a finger.
        readonly property real reach: Math.max(0, Theme.touchTarget - chart.replayButton.width) / 2

        objectName: "replayButton"
        x: chart.replayButton.x - reach
        y: chart.replayButton.y - reach
        width: chart.replayButton.width + 2 * reach
        height: chart.replayButton.height + 2 * reach
        visible: chart.duration > 0
        enabled: !chart.isRunning
        Accessible.name: qsTrId("animateAgainButton")
        onClicked: view.start()

        FocusRing {
            control: replay
            anchors.margins: replay.reach
            radius: width / 2
        }
    }
}
