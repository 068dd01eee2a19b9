import QtQuick
import Tavi

// The working as one table of cards, with two round buttons over its lower right corner.
Rectangle {
    id: page

    required property SolutionViewController controller

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
            width: 1
            height: page.controller.hasFooter ? table.height / 4 : 0
        }
        delegate: Loader {
            id: holder

            required property int section
            required property int row
            required property int kind
            readonly property real rowHeight: page.controller.heightForRow(section, row, page.width)

            width: table.width
            sourceComponent: [stepCell, chartCell, videoCell][kind]

            Component {
                id: stepCell

                SolutionStepCell {
                    width: holder.width
                    rowHeight: holder.rowHeight
                    formulaSize: formulaSizeFor(page.width)
                    Component.onCompleted: page.controller.cellForRow(this, holder.section, holder.row)
                }
            }
            Component {
                id: chartCell

                ChartTableViewCell {
                    height: holder.rowHeight
                    Component.onCompleted: page.controller.cellForRow(this, holder.section, holder.row)
                }
            }
            Component {
                id: videoCell

                VideoCollectionTableViewCell {
                    height: holder.rowHeight
                    Component.onCompleted: page.controller.cellForRow(this, holder.section, holder.row)
                }
            }
        }

        Keys.onPressed: event => {
            const page = height - 48;
            const ways = {
                [Qt.Key_Down]: 48, [Qt.Key_Up]: -48, [Qt.Key_PageDown]: page, [Qt.Key_PageUp]: -page,
                [Qt.Key_Home]: -contentHeight, [Qt.Key_End]: contentHeight
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
        }
    }

    FocusRing {
        anchors.fill: table
        visible: table.activeFocus
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
        anchors.right: table.right
        anchors.bottom: table.bottom
        anchors.margins: 12
        visible: !page.controller.isShareButtonHidden
        text: qsTrId("shareButton")
        iconText: Icons.share
        onClicked: page.controller.tappedShareButton()
    }
    FloatingButton {
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
