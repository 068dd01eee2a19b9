import QtQuick
import QtQuick.Window
import Tavi

// The row of tutorial videos: a heading with two buttons over the videos side by side, and a quiet veil over them while
// the user has not agreed that they come from an outside service.
TableRow {
    id: row

    required property var measures
    required property VideoRowController videos
    readonly property real offset: table ? y - table.contentY : 0
    readonly property bool isInSight: Window.window !== null && table !== null && offset + card.y + card.height > 0 && offset + card.y < table.height

    height: card.y + card.height
    Accessible.role: Accessible.Grouping
    Accessible.name: titleLabel.text
    Component.onCompleted: videos.awakeFromNib()

    Rectangle {
        id: card

        objectName: "videoRow"
        y: row.measures.pageMargin
        width: parent.width
        height: row.measures.videoCardHeight(row.rowHeight.at(row.viewWidth), row.table ? row.table.height : Infinity)
        radius: row.measures.corner
        color: Theme.background

        Text {
            id: titleLabel

            x: row.measures.edge
            width: privacyButton.x - x - 4
            height: 64
            text: qsTrId("recommendedVideoIfUnclear")
            font: Theme.medium(16)
            color: Theme.label
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        IconButton {
            id: privacyButton

            objectName: "videoPrivacyButton"
            anchors.right: manualButton.left
            y: 8
            text: qsTrId(row.videos.isLocked ? "videoPrivacyLocked" : "videoPrivacyOpen")
            iconText: row.videos.isLocked ? Icons.lock : Icons.lockOpen
            tintColor: Theme.legible(View.tintColor, card.color)
            groundColor: card.color
            onClicked: row.videos.tappedPrivacyButton()
            Component.onCompleted: row.videos.applyStyle(privacyButton)
        }
        IconButton {
            id: manualButton

            objectName: "videoManualButton"
            anchors.right: parent.right
            anchors.rightMargin: 4
            y: 8
            text: qsTrId("videoGuide")
            iconText: Icons.manual
            tintColor: Theme.legible(View.tintColor, card.color)
            groundColor: card.color
            onClicked: row.videos.tappedManualButton()
            Component.onCompleted: row.videos.applyStyle(manualButton)
        }

        // Before the videos, so that the focus is on a button above them once it is gone.
        Rectangle {
            id: lockingView

            objectName: "lockingView"
            x: row.measures.edge
            y: 64
            width: parent.width - 2 * x
            height: parent.height - y - row.measures.edge
            radius: 12
            visible: row.videos.isLocked
            color: Theme.page

            Column {
                anchors.centerIn: parent
                spacing: 20

                Icon {
                    anchors.horizontalCenter: parent.horizontalCenter
                    size: 48
                    text: Icons.lock
                    color: Theme.secondaryGray
                }
                ActionButton {
                    id: unlockButton

                    objectName: "unlockButton"
                    View.tag: 103
                    anchors.horizontalCenter: parent.horizontalCenter
                    implicitWidth: Math.min(lockingView.width - 32, contentItem.implicitWidth + 48)
                    text: qsTrId("touchTounlock")
                    font: Theme.medium(17)
                    onClicked: row.videos.tappedLockingViewButton()
                    Component.onCompleted: row.videos.applyStyle(unlockButton)
                }
            }
        }
        ListView {
            id: collection

            objectName: "videoCollection"
            y: 64
            width: parent.width
            height: parent.height - y - 8
            orientation: ListView.Horizontal
            leftMargin: row.measures.edge
            rightMargin: row.measures.edge
            spacing: 16
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            interactive: !row.videos.isLocked
            keyNavigationEnabled: true
            highlightMoveDuration: 200
            visible: !row.videos.isLocked
            model: row.content.videoUrlStringArray
            Accessible.role: Accessible.List
            Accessible.name: titleLabel.text

            delegate: FocusScope {
                id: cell

                required property int index
                required property string modelData

                width: tile.width
                height: collection.height
                onActiveFocusChanged: {
                    if (activeFocus)
                        collection.currentIndex = index;
                }

                VideoTile {
                    id: tile

                    focus: true
                    anchors.verticalCenter: parent.verticalCenter
                    width: 0.95 * collection.height
                    height: width
                    controller: row.videos
                    number: cell.index + 1
                    link: cell.modelData
                    isInSight: row.isInSight && cell.x + cell.width > collection.contentX && cell.x < collection.contentX + collection.width
                }
            }
        }
        // Over the videos, as a web view would keep the wheel to itself.
        Item {
            anchors.fill: collection
            visible: collection.visible

            WheelHandler {
                acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
                onWheel: event => row.table.scrollBy(-event.angleDelta.y)
            }
            WheelHandler {
                acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
                orientation: Qt.Horizontal
                onWheel: event => {
                    collection.contentX -= event.angleDelta.x;
                    collection.returnToBounds();
                }
            }
        }
    }
}
