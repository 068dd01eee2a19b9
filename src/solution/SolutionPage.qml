import QtQuick
import Qt.labs.qmlmodels
import Tavi

// The working as one table of cards, with two round buttons over its lower right corner.
Rectangle {
    id: page

    required property SolutionViewController controller
    readonly property bool hasRoomBeside: width - Theme.tabletWidth >= 2 * 96

    View.kind: View.Plain
    color: Theme.page

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
        activeFocusOnTab: true
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
                    viewWidth: page.width
                    measures: page.controller.measures
                }
            }
            DelegateChoice {
                roleValue: "chart"
                ChartRow {
                    width: table.width
                    viewWidth: page.width
                }
            }
            DelegateChoice {
                roleValue: "video"
                VideoRow {
                    width: table.width
                    viewWidth: page.width
                }
            }
        }

        // A ring is for those who go by key: it comes with the first one, if only let go here.
        property bool isKeyed: false
        onActiveFocusChanged: isKeyed = false
        Keys.onReleased: isKeyed = true
        Keys.onPressed: event => {
            const page = height - 48;
            const ways = {
                [Qt.Key_Down]: 48,
                [Qt.Key_Up]: -48,
                [Qt.Key_PageDown]: page,
                [Qt.Key_PageUp]: -page,
                [Qt.Key_Home]: -contentHeight,
                [Qt.Key_End]: contentHeight
            };
            const way = ways[event.key];
            if (way === undefined)
                return;
            event.accepted = true;
            const top = originY - topMargin;
            const foot = Math.max(top, originY + contentHeight + bottomMargin - height);
            contentY = Math.min(foot, Math.max(top, contentY + way));
        }

        Connections {
            target: page.controller
            function onScrollToTopRequested() {
                table.positionViewAtBeginning();
            }
            function onSolutionShown() {
                table.forceActiveFocus(Qt.TabFocusReason);
            }
        }
    }

    FocusRing {
        anchors.fill: table
        visible: table.activeFocus && table.isKeyed
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
}
