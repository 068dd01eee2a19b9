import QtQuick
import Tavi

// Shows where in a scrolling view the visible part lies, while it moves and when it is wide.
Rectangle {
    id: thumb

    required property Flickable flickable
    property int orientation: Qt.Horizontal
    readonly property bool isHorizontal: orientation === Qt.Horizontal
    readonly property real share: isHorizontal ? flickable.visibleArea.widthRatio : flickable.visibleArea.heightRatio
    readonly property real place: isHorizontal ? flickable.visibleArea.xPosition : flickable.visibleArea.yPosition

    x: isHorizontal ? flickable.x + place * flickable.width : 0
    y: isHorizontal ? 0 : flickable.y + place * flickable.height
    width: isHorizontal ? share * flickable.width : 3
    height: isHorizontal ? 3 : share * flickable.height
    radius: 1.5
    visible: flickable.visible && share < 1
    color: Theme.secondaryGray
    opacity: flickable.moving ? 0.9 : 0.45
}
