import QtQuick
import Tavi

// The history as one card of rows, day by day, under a field that searches it. A row is reopened by a tap and swiped aside for its delete button; in edit
// mode it is deleted by the control at its left and dragged by the handle at its right.
Rectangle {
    id: page

    required property HistoryTableViewController controller
    readonly property bool isWide: width >= Theme.tabletWidth

    View.kind: View.Plain
    color: Theme.page

    HistoryBar {
        id: bar

        x: list.x
        y: 8
        width: list.width
        controller: page.controller
        canSearch: list.count > 0 || isInUse
        onFinished: list.forceActiveFocus(Qt.OtherFocusReason)
    }

    ListView {
        id: list

        property HistoryRow openRow // The one that shows its delete button.

        function closeOpenRow() {
            if (openRow)
                openRow.close();
        }

        // The list takes changes in at the next frame; the next key may come before that.
        function removeRow(row) {
            if (!page.controller.canEditRow(row))
                return;
            page.controller.commitEditingStyle(HistoryTableViewController.Delete, row);
            forceLayout();
        }

        function goTo(row) {
            currentIndex = Math.max(0, Math.min(count - 1, row));
            positionViewAtIndex(currentIndex, ListView.Contain);
        }

        // What a key does to the current row, if that is in sight; if not, the key only brings it there.
        function onCurrent(action) {
            const middle = currentItem ? currentItem.y + currentItem.height / 2 - contentY : -1;
            if (0 <= middle && middle < height)
                action(currentIndex);
            if (count > 0)
                goTo(currentIndex);
        }

        function moveRow(row, way) {
            const to = row + way;
            if (!page.controller.isEditing || to < 0 || to >= count || !page.controller.canMoveRow(row))
                return;
            page.controller.moveRow(row, to);
            forceLayout();
            moved.say(to);
        }

        function copy(row) {
            page.controller.copyRow(row, HistoryTableViewController.Typed);
        }

        function openMenu(row) {
            rowMenu.openFor(row, currentItem, Qt.point(currentItem.width / 2, currentItem.height / 2));
        }

        function select(row) {
            if (!page.controller.isEditing)
                page.controller.didSelectRow(row);
        }

        objectName: "historyTable"
        x: Math.max(8, (parent.width - width) / 2)
        width: Math.min(parent.width - 16, Theme.tabletWidth)
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        topMargin: 8
        bottomMargin: 8
        clip: true
        model: page.controller.table
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        section.property: page.controller.isEditing ? "" : "day" // Rows are moved over all days.
        section.delegate: Label {
            required property string section

            objectName: "dayTitle"
            x: 16
            width: list.width - 32
            topPadding: 12
            bottomPadding: 4
            text: section
            font: Theme.heavy(14)
            color: Theme.legible(Theme.secondaryGray, Theme.background)
            Accessible.ignored: true // Each row tells its day.
        }
        activeFocusOnTab: count > 0 || activeFocus
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("History")
        onMovementStarted: closeOpenRow()
        onActiveFocusChanged: if (activeFocus && currentIndex < 0 && count > 0)
            goTo(0)

        delegate: HistoryRow {
            controller: page.controller
            table: list
            fontSize: page.isWide ? 24 : 20
            shift: drag.shiftOf(index)
            isShiftAnimated: drag.isActive
            isLifted: drag.isActive && index === drag.from
            onMenuRequested: place => rowMenu.openFor(index, this, place)
        }

        Rectangle {
            parent: list.contentItem
            z: -1
            y: list.originY
            width: list.width
            height: list.contentHeight
            radius: 12
            color: Theme.background
        }

        remove: Transition {
            NumberAnimation {
                property: "opacity"
                to: 0
                duration: 200
            }
        }
        removeDisplaced: Transition {
            NumberAnimation {
                property: "y"
                duration: 200
                easing.type: Easing.OutCubic
            }
        }

        Keys.onReturnPressed: onCurrent(select)
        Keys.onEnterPressed: onCurrent(select)
        Keys.onSpacePressed: onCurrent(select)
        Keys.onDeletePressed: onCurrent(removeRow)
        Keys.onPressed: event => {
            const page = Math.max(1, Math.floor(height / 72) - 1);
            const isMoving = event.modifiers & Qt.AltModifier;
            const ways = {
                [Qt.Key_Up]: -1,
                [Qt.Key_Down]: 1,
                [Qt.Key_PageUp]: -page,
                [Qt.Key_PageDown]: page,
                [Qt.Key_Home]: -count,
                [Qt.Key_End]: count
            };
            const isMenuKey = event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier);
            const action = event.matches(StandardKey.Copy) ? copy : isMenuKey ? openMenu : null;
            const way = ways[event.key];
            if ((way === undefined && !action) || count === 0)
                return;
            event.accepted = true;
            if (action)
                onCurrent(action);
            else if (isMoving)
                onCurrent(row => moveRow(row, way));
            else
                goTo(currentIndex + way);
        }
        Keys.onLeftPressed: onCurrent(() => currentItem.scrollBy(-48))
        Keys.onRightPressed: onCurrent(() => currentItem.scrollBy(48))
    }

    // Mostly not needed, and not on the way to the first sight of the page.
    Loader {
        id: rowMenu

        function openFor(row: int, item: Item, place: point) {
            // Of a finger that stayed on a page which left meanwhile.
            if (!page.Window.window)
                return;
            active = true;
            (rowMenu.item as HistoryRowMenu).openFor(row, item, place);
        }

        active: false
        sourceComponent: HistoryRowMenu {
            controller: page.controller
        }
    }

    // Where a row has gone that was moved by key, for those who do not see it.
    Item {
        id: moved

        property string words

        function say(row) {
            words = qsTrId("historyMoved").arg(row + 1).arg(list.count);
            ViewManager.announce(moved);
        }

        objectName: "movedRow"
        Accessible.role: Accessible.AlertMessage
        Accessible.name: words
        Accessible.ignored: !words
    }

    Shortcut {
        sequences: [StandardKey.Cancel]
        enabled: page.controller.isEditing || bar.isInUse
        onActivated: bar.isInUse ? bar.leave() : page.controller.handleEditButton()
    }

    Shortcut {
        sequences: [StandardKey.Find]
        enabled: bar.canSearch
        onActivated: bar.search()
    }

    Shortcut {
        sequences: [StandardKey.Undo]
        enabled: ViewManager.toastActionTitle === qsTrId("Undo")
        onActivated: ViewManager.chooseToastAction()
    }

    ScrollThumb {
        flickable: list
        orientation: Qt.Vertical
        anchors.right: parent.right
        anchors.rightMargin: 2
    }

    Connections {
        target: page.controller
        function onIsEditingChanged() {
            list.closeOpenRow();
        }
        function onSearchChanged() {
            list.positionViewAtBeginning();
        }
        function onRowRestored(row) {
            list.forceLayout();
            list.goTo(row);
        }
    }

    HistoryDrag {
        id: drag

        anchors.fill: list
        table: list
        controller: page.controller
        fontSize: page.isWide ? 24 : 20
    }

    Label {
        objectName: "nothingFound"
        anchors.centerIn: list
        width: Math.min(320, parent.width - 48)
        visible: list.count === 0 && page.controller.isSearching && page.controller.isSearchThrough
        text: qsTrId("historyNothingFound")
        horizontalAlignment: Text.AlignHCenter
    }

    Column {
        objectName: "emptyHistory"
        anchors.centerIn: parent
        width: Math.min(320, parent.width - 48)
        spacing: 16
        visible: list.count === 0 && !page.controller.isSearching

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            text: Icons.history
            size: 56
            color: Theme.secondaryGray
        }
        Text {
            width: parent.width
            text: qsTrId("historyEmpty")
            font: Theme.book(16)
            color: Theme.label
            wrapMode: Text.Wrap
            lineHeight: 1.2
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        ActionButton {
            objectName: "historyCalculate"
            anchors.horizontalCenter: parent.horizontalCenter
            leftPadding: 24
            rightPadding: 24
            font: Theme.medium(16)
            text: qsTrId("historyCalculate")
            View.tag: 103
            onClicked: page.controller.openCalculatePage()
        }
    }
}
