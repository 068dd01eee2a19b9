import QtQuick
import Tavi

// The strip of drag handles at the right of the table, in edit mode, and the row under the finger. The table
// keeps its order until the finger is lifted; the rows between are only pushed aside.
Item {
    id: drag

    required property ListView table
    required property HistoryTableViewController controller
    required property real fontSize

    property int from: -1
    property int to: -1
    property bool isActive: false
    property real rowHeight: 0

    function shiftOf(row) {
        if (from < row && row <= to)
            return -rowHeight;
        if (to <= row && row < from)
            return rowHeight;
        return 0;
    }

    function lift(y) {
        const row = table.indexAt(1, table.contentY + y);
        const cell = table.itemAtIndex(row);
        if (!cell || !controller.canMoveRow(row))
            return false;
        table.closeOpenRow();
        table.currentIndex = row;
        rowHeight = cell.height;
        ghost.grip = y - (cell.y - table.contentY);
        ghost.latex = cell.mathLabel.latex;
        to = row;
        from = row;
        isActive = true;
        return true;
    }

    // The row whose place lies under the middle of the dragged one.
    function aim() {
        if (!isActive)
            return;
        const middle = Math.max(0, Math.min(table.height - 1, ghost.y + ghost.height / 2)) + table.contentY;
        const first = table.originY;
        const row = table.indexAt(1, Math.max(first, Math.min(first + table.contentHeight - 1, middle)));
        if (row >= 0)
            to = row;
    }

    // The rows fall into place at once: they stand there already.
    function drop(isMoving) {
        const start = from;
        const end = to;
        isActive = false;
        from = -1;
        to = -1;
        if (isMoving && start !== end)
            controller.moveRow(start, end);
    }

    clip: true

    MouseArea {
        id: strip

        objectName: "dragHandles"
        anchors.right: parent.right
        width: Theme.touchTarget + 4
        height: parent.height
        enabled: drag.controller.isEditing && !drag.controller.isSearching && drag.table.count > 0
        preventStealing: true
        onPressed: mouse => mouse.accepted = drag.lift(mouse.y)
        onReleased: drag.drop(true)
        onCanceled: drag.drop(false)
        onPositionChanged: drag.aim()
    }

    Timer {
        readonly property real margin: 56
        readonly property real way: strip.mouseY < margin ? -8 : strip.mouseY > drag.height - margin ? 8 : 0

        interval: 16
        repeat: true
        running: drag.isActive && way !== 0
        onTriggered: {
            const table = drag.table;
            const top = table.originY - table.topMargin;
            const foot = Math.max(top, table.originY + table.contentHeight + table.bottomMargin - table.height);
            table.contentY = Math.max(top, Math.min(foot, table.contentY + way));
            drag.aim();
        }
    }

    Item {
        id: ghost

        property real grip: 0
        property alias latex: formula.latex

        objectName: "draggedRow"
        visible: drag.isActive
        y: Math.max(0, Math.min(drag.height - height, strip.mouseY - grip))
        width: parent.width
        height: drag.rowHeight

        Shadow {
            anchors.fill: parent
            anchors.margins: -extent
            shadow: Theme.edgeShadow
            cornerRadius: 8
        }
        Rectangle {
            anchors.fill: parent
            radius: 8
            color: Theme.groupedBackground
        }
        Item {
            x: Theme.touchTarget + 4
            width: parent.width - 2 * x
            height: parent.height
            clip: true

            MathLabel {
                id: formula

                x: 16
                y: (parent.height - height) / 2
                width: implicitWidth
                height: implicitHeight
                fontSize: drag.fontSize
                textColor: Theme.label
                backgroundColor: Theme.groupedBackground
                Accessible.ignored: true
            }
        }
        Icon {
            x: parent.width - width
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.touchTarget + 4
            text: Icons.menu
        }
    }
}
