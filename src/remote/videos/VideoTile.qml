import QtQuick
import Tavi

// One video: covered until its player is ready. Without a player a tap opens it in the browser; a link to no video
// stays an empty tile.
FocusScope {
    id: tile

    required property VideoRowController controller
    required property string link
    property int number: 1 // Of those side by side, which would all be called the same.
    property bool isInSight: false
    readonly property bool isVideo: controller.isVideo(link)
    readonly property bool isPlaying: isVideo && isInSight && !controller.isLocked
    readonly property Component playerComponent: isPlaying ? controller.player() : null
    readonly property bool isReady: Boolean(player.page?.isReady)
    readonly property bool opensOutside: isPlaying && (playerComponent === null || isGivenUp)
    property bool isGivenUp: false

    objectName: "videoTile"
    activeFocusOnTab: isInSight && !isReady && !opensOutside
    Accessible.role: Accessible.Grouping
    Accessible.name: number + ": " + qsTrId(!isVideo ? "videoMissing" : isReady ? "videoReady" : "videoCovered")
    Accessible.ignored: opensOutside
    onIsPlayingChanged: isGivenUp = false

    View.kind: View.Plain
    Component.onCompleted: controller.applyFloatingShadow(tile)

    Shadow {
        anchors.fill: parent
        anchors.margins: -extent
        cornerRadius: 12
        shadow: tile.View.shadow
    }
    Rectangle {
        anchors.fill: parent
        radius: 12
        color: Theme.background
    }
    Loader {
        id: player

        readonly property var page: item

        anchors.fill: parent
        anchors.margins: 6
        focus: tile.isReady
        active: tile.playerComponent !== null && !tile.isGivenUp
        sourceComponent: tile.playerComponent
        onLoaded: page.play(tile.controller.page(tile.link), tile.controller.pageAddress())
    }
    Connections {
        target: player.item
        ignoreUnknownSignals: true
        function onIsFailedChanged() {
            tile.isGivenUp = true;
        }
    }
    // A web view whose engine is missing says nothing at all.
    Timer {
        interval: 15000
        running: player.active && !tile.isReady
        onTriggered: tile.isGivenUp = true
    }

    Pressable {
        id: coveringView

        objectName: "coveringView"
        anchors.fill: parent
        visible: !tile.isReady
        enabled: tile.opensOutside
        focus: tile.opensOutside
        text: qsTrId("videoOutside")
        Accessible.name: tile.number + ": " + text
        Accessible.ignored: !tile.opensOutside
        onClicked: tile.controller.openOutside(tile.link)

        background: Rectangle {
            radius: 12
            color: coveringView.down ? Qt.darker(Theme.page, 1.1) : Theme.page
        }
        contentItem: Item {
            Rectangle {
                anchors.centerIn: parent
                width: 64
                height: 64
                radius: 32
                visible: tile.isVideo
                color: tile.opensOutside ? Theme.pink : "transparent"
                border.width: 2
                border.color: tile.opensOutside ? Theme.pink : Theme.secondaryGray

                Icon {
                    anchors.centerIn: parent
                    size: 36
                    text: Icons.play
                    color: tile.opensOutside ? Theme.darkTitle : Theme.secondaryGray
                }
            }
            Text {
                anchors.bottom: parent.bottom
                anchors.bottomMargin: 14
                width: parent.width
                visible: tile.opensOutside
                text: coveringView.text
                font: Theme.book(14)
                color: Theme.label
                wrapMode: Text.Wrap
                leftPadding: 8
                rightPadding: 8
                horizontalAlignment: Text.AlignHCenter
                Accessible.ignored: true
            }
        }
    }
    FocusRing {
        control: tile
        ground: Theme.page
        radius: 12
    }
}
