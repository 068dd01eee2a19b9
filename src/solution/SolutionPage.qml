import QtQuick
import Qt.labs.qmlmodels
import Tavi

// The working as one table of cards, with two round buttons over its lower right corner.
Rectangle {
    id: page

    required property SolutionViewController controller
    readonly property Reader reader: controller.reader
    readonly property bool hasRoomBeside: width - Theme.tabletWidth >= 2 * 96

    // Of all rows, changed by the table.
    property int formulaPercent: 100

    View.kind: View.Plain
    color: Theme.page
    Component.onCompleted: formulaPercent = Theme.formulaPercent

    ListView {
        id: table

        objectName: "solutionTable"
        x: Math.max(8, (parent.width - width) / 2)
        width: Math.min(parent.width - 16, Theme.tabletWidth)
        height: parent.height - page.controller.bottomBannerInset
        topMargin: 8
        bottomMargin: 8
        clip: true
        model: page.controller.table
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: count > 0
        Accessible.role: Accessible.List
        Accessible.name: page.controller.tabItem.title
        footer: Item {
            // Enough for the last row to be scrolled clear of the buttons, too.
            width: 1
            height: page.controller.hasFooter ? Math.max(table.height / 4, table.height - manualButton.y) : 0
        }
        delegate: DelegateChooser {
            role: "kind"

            DelegateChoice {
                roleValue: "step"
                StepRow {
                    width: table.width
                    onMenuRequested: place => rowMenu.openFor(index, this, place)
                    viewWidth: page.width
                    measures: page.controller.measures
                    isRead: page.reader.row === index
                    isMarked: page.controller.marks[index] ?? false
                    hasExactValue: page.controller.hasExactValue && content.isResult
                    onExactRequested: page.controller.tappedExactButton()
                    formulaPercent: page.formulaPercent
                }
            }
            DelegateChoice {
                roleValue: "chart"
                ChartRow {
                    width: table.width
                    isRead: page.reader.row === index
                    onMenuRequested: place => rowMenu.openFor(index, this, place)
                    viewWidth: page.width
                }
            }
            DelegateChoice {
                roleValue: "video"
                VideoRow {
                    width: table.width
                    viewWidth: page.width
                    measures: page.controller.measures
                    videos: page.controller.videos
                }
            }
        }

        // A button in a row, which the keyboard may go to out of sight.
        readonly property Item focused: activeFocus ? Window.activeFocusItem : null

        onFocusedChanged: {
            if (!focused || !KeyboardUse.isCurrent || focused === this || focused.parent === contentItem)
                return;
            const top = focused.mapToItem(contentItem, 0, 0).y - contentY;
            scrollBy(Math.min(0, top) + Math.max(0, top + focused.height - height));
        }

        // Who comes back goes through the rows and their buttons again.
        onActiveFocusChanged: {
            if (activeFocus || !Window.active)
                return;
            const next = currentItem ?? contentItem;
            next.focus = true;
            next.focus = next === currentItem;
        }

        readonly property int wantedPercent: Theme.formulaPercent

        // What stands at the top stays there.
        onWantedPercentChanged: {
            const top = Math.max(originY, contentY);
            const index = indexAt(width / 2, top);
            const row = itemAtIndex(index);
            const share = row ? (top - row.y) / row.height : 0;
            const isAtTop = contentY <= originY - topMargin;
            page.formulaPercent = wantedPercent;
            forceLayout();
            if (row && !isAtTop) {
                positionViewAtIndex(index, ListView.Beginning);
                contentY = row.y;
                scrollBy(share * row.height);
            }
        }

        function scrollBy(way: real) {
            const top = originY - topMargin;
            const foot = Math.max(top, originY + contentHeight + bottomMargin - height);
            contentY = Math.min(foot, Math.max(top, contentY + way));
        }

        // To the next row, but first to the end of one that is higher than the page; while rows are read, to what is read.
        function stepBy(way: int) {
            if (page.reader.isReading)
                return page.reader.readFrom(Math.max(0, page.reader.row + way));
            const row = currentItem;
            if (row && way > 0 && row.y + row.height > contentY + height)
                return scrollBy(48);
            if (row && way < 0 && row.y < contentY)
                return scrollBy(-48);
            currentIndex = Math.max(0, Math.min(count - 1, currentIndex + way));
            bringIntoSight(currentIndex);
        }

        function bringIntoSight(row: int) {
            positionViewAtIndex(row, ListView.Contain);
            // The second time it knows how high the rows on the way are.
            positionViewAtIndex(row, ListView.Contain);
        }

        function scrollPage(way: real) {
            scrollBy(way);
            const middle = indexAt(width / 2, contentY + height / 2);
            currentIndex = middle >= 0 ? middle : way < 0 ? 0 : count - 1;
        }

        // Stops where it is, and goes on from there the next time.
        function toggleReading() {
            if (!page.reader.isReading)
                return page.reader.readFrom(Math.max(0, currentIndex));
            currentIndex = page.reader.row;
            page.reader.stop();
        }

        function openMenu() {
            if (currentItem)
                rowMenu.openFor(currentIndex, currentItem, Qt.point(currentItem.width / 2, currentItem.height / 2));
        }

        keyNavigationEnabled: false
        highlightFollowsCurrentItem: false
        currentIndex: -1
        Keys.onPressed: event => {
            const actions = {
                [Qt.Key_Down]: () => stepBy(1),
                [Qt.Key_Up]: () => stepBy(-1),
                [Qt.Key_PageDown]: () => scrollPage(height - 48),
                [Qt.Key_PageUp]: () => scrollPage(48 - height),
                [Qt.Key_Home]: () => scrollPage(-contentHeight),
                [Qt.Key_End]: () => scrollPage(contentHeight),
                [Qt.Key_Left]: () => currentItem && currentItem.pressed(event.key),
                [Qt.Key_Right]: () => currentItem && currentItem.pressed(event.key),
                [Qt.Key_Menu]: () => openMenu(),
                [Qt.Key_R]: () => toggleReading()
            };
            if (event.matches(StandardKey.Copy))
                page.controller.copyRow(currentIndex, RowCopy.Latex);
            else if (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier)
                openMenu();
            else if (event.modifiers === Qt.NoModifier && event.key in actions)
                actions[event.key]();
            else
                return;
            event.accepted = true;
        }

        Connections {
            target: page.reader
            function onRowChanged() {
                if (page.reader.isReading)
                    table.bringIntoSight(page.reader.row);
            }
        }
        Connections {
            target: page.controller
            function onScrollToTopRequested() {
                table.positionViewAtBeginning();
                table.currentIndex = -1;
            }
            function onSolutionShown() {
                table.forceActiveFocus(Qt.TabFocusReason);
            }
        }
    }

    // Beside the input the page can be seen before there is a working.
    Label {
        objectName: "workingHere"
        anchors.centerIn: parent
        width: Math.max(0, parent.width - 64)
        visible: table.count === 0
        text: qsTrId("workingHere")
        horizontalAlignment: Text.AlignHCenter
        color: Theme.legible(Theme.secondaryGray, Theme.page)
    }

    // Over the rows, so that they do not scroll meanwhile.
    Item {
        id: scaling

        function by(steps: int) {
            page.controller.scaleFormulas(Theme.formulaPercent + 10 * steps);
        }

        anchors.fill: table

        WheelHandler {
            acceptedModifiers: Qt.ControlModifier
            target: null
            // A notch is 15 degrees, of which a touch pad tells a few at a time.
            onRotationChanged: {
                const notches = Math.trunc(rotation / 15);
                if (notches === 0)
                    return;
                rotation -= 15 * notches;
                scaling.by(notches);
            }
        }
        PinchHandler {
            property int startPercent

            objectName: "formulaPinch"
            target: null
            grabPermissions: PointerHandler.CanTakeOverFromAnything
            onActiveChanged: startPercent = Theme.formulaPercent
            onActiveScaleChanged: {
                if (active)
                    page.controller.scaleFormulas(5 * Math.round(startPercent * activeScale / 5));
            }
        }
    }
    Shortcut {
        sequences: [StandardKey.ZoomIn, "Ctrl+="]
        onActivated: scaling.by(1)
    }
    Shortcut {
        sequences: [StandardKey.ZoomOut]
        onActivated: scaling.by(-1)
    }
    Shortcut {
        sequence: "Ctrl+0"
        onActivated: page.controller.scaleFormulas(0)
    }

    Shortcut {
        sequences: [StandardKey.Cancel, StandardKey.Back]
        enabled: page.reader.isReading && !rowMenu.visible
        onActivated: page.reader.stop()
    }

    // Until a row is chosen, the keyboard is at the whole table.
    FocusRing {
        anchors.fill: table
        control: table.currentIndex < 0 ? table : null
    }
    RowMenu {
        id: rowMenu

        controller: page.controller
    }
    ScrollThumb {
        flickable: table
        orientation: Qt.Vertical
        anchors.right: parent.right
        anchors.rightMargin: 2
    }

    FloatingButton {
        id: shareButton

        objectName: "shareButton"
        View.tag: 104
        // Beside the table where there is room for them.
        x: Math.min(page.width - width - 12, table.x + table.width + (page.hasRoomBeside ? 24 : -width - 12))
        anchors.bottom: table.bottom
        anchors.bottomMargin: 12
        visible: !page.controller.isShareButtonHidden
        text: qsTrId("shareButton")
        iconText: Icons.share
        onClicked: page.controller.tappedShareButton()
    }
    FloatingButton {
        id: manualButton

        objectName: "manualButton"
        anchors.right: shareButton.right
        anchors.bottom: shareButton.top
        anchors.bottomMargin: 12
        visible: !page.controller.isManualButtonHidden
        outlined: true
        text: qsTrId("manualButton")
        iconText: Icons.manual
        onClicked: page.controller.manualButtonPressed()
    }
    FloatingButton {
        objectName: "stopReadingButton"
        anchors.right: shareButton.right
        anchors.bottom: manualButton.visible ? manualButton.top : shareButton.top
        anchors.bottomMargin: 12
        visible: page.reader.isReading
        outlined: true
        text: qsTrId("readAloudStop")
        iconText: Icons.stop
        onClicked: table.toggleReading()
    }
}
