import QtQuick
import Tavi

// Five stars: a tap or a drag gives them, and so do the arrow keys; a screen reader has a slider.
Item {
    id: stars

    property real rating: 0
    readonly property int count: 5
    readonly property real side: Math.min(56, width / count)
    readonly property real oneMore: Math.min(count, Math.floor(rating) + 1)
    readonly property real oneLess: Math.max(1, Math.ceil(rating) - 1)

    // What a screen reader asks of a slider.
    readonly property real value: rating
    readonly property real minimumValue: 1
    readonly property real maximumValue: count
    readonly property real stepSize: 1

    signal given(real rating)

    function at(x) {
        return Math.max(1, Math.min(count, Math.ceil((x - row.x) / side)));
    }

    View.kind: View.Stars

    implicitWidth: count * 56
    implicitHeight: 56
    activeFocusOnTab: true
    Accessible.role: Accessible.Slider
    Accessible.name: qsTrId("ratingStars").arg(rating).arg(count)
    Accessible.focusable: true
    Accessible.onIncreaseAction: given(oneMore)
    Accessible.onDecreaseAction: given(oneLess)
    Keys.onPressed: event => {
        const next = {
            [Qt.Key_Right]: oneMore,
            [Qt.Key_Up]: oneMore,
            [Qt.Key_Left]: oneLess,
            [Qt.Key_Down]: oneLess,
            [Qt.Key_Home]: 1,
            [Qt.Key_End]: count
        }[event.key] ?? (event.key > Qt.Key_0 && event.key <= Qt.Key_0 + count ? event.key - Qt.Key_0 : 0);
        if (!next)
            return;
        event.accepted = true;
        given(next);
    }

    Row {
        id: row

        x: (stars.width - width) / 2
        height: parent.height

        Repeater {
            model: stars.count

            Item {
                id: star

                required property int index
                readonly property real share: Math.max(0, Math.min(1, stars.rating - index))

                width: stars.side
                height: row.height

                // The outline lies over the filled part, which ends where the rating does.
                Item {
                    width: parent.width * star.share
                    height: parent.height
                    clip: true

                    Icon {
                        width: star.width
                        height: star.height
                        size: 40
                        text: Icons.star
                        color: stars.View.filledColor
                    }
                }
                Icon {
                    width: star.width
                    height: star.height
                    size: 40
                    text: Icons.starOutline
                    color: star.share > 0 ? Theme.darkGold : Theme.secondaryGray
                }
            }
        }
    }
    MouseArea {
        anchors.fill: parent
        preventStealing: true
        onPressed: mouse => stars.given(stars.at(mouse.x))
        onPositionChanged: mouse => stars.given(stars.at(mouse.x))
    }
    FocusRing {
        visible: stars.activeFocus
        ground: Theme.groupedBackground
        radius: 8
    }
}
