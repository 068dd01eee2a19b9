import QtQuick
import Tavi

// A drawing that two fingers, the wheel, a double tap or the keys bring nearer, and its numerals in words; in a low
// or wide window the words stand beside it.
Item {
    id: page

    required property ManualViewController controller
    readonly property bool isWide: width > height

    PageHead {
        id: head

        title: page.controller.label
        onClosed: page.controller.cancel()
    }

    Rectangle {
        id: frame

        objectName: "manualFrame"
        anchors.top: head.bottom
        anchors.left: parent.left
        width: page.isWide ? 0.58 * parent.width : parent.width
        height: page.isWide ? parent.height - head.height - 2 * anchors.margins : Math.min(0.55 * page.height, width * 0.9)
        color: Theme.background
        radius: 12
        anchors.margins: page.isWide ? 12 : 0

        Flickable {
            id: scroll

            readonly property real largest: 4
            property real zoom: 1

            // Brings the drawing nearer or further away around a point of the view, which stays where it is.
            function zoomAt(point, factor) {
                const next = Math.max(1, Math.min(largest, zoom * factor));
                const grown = next / zoom;
                const x = (contentX + point.x) * grown - point.x;
                const y = (contentY + point.y) * grown - point.y;
                zoom = next;
                move(x - contentX, y - contentY);
            }

            function move(x, y) {
                contentX = Math.max(0, Math.min(contentWidth - width, contentX + x));
                contentY = Math.max(0, Math.min(contentHeight - height, contentY + y));
            }

            objectName: "manualScroll"
            anchors.fill: parent
            contentWidth: width * zoom
            contentHeight: height * zoom
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            activeFocusOnTab: true
            Accessible.role: Accessible.Graphic
            Accessible.name: page.controller.label
            Accessible.description: Array.from(page.controller.legend).join(" ")
            Accessible.focusable: true
            Keys.onPressed: event => {
                const middle = Qt.point(width / 2, height / 2);
                const acts = {
                    [Qt.Key_Plus]: () => zoomAt(middle, 1.25),
                    [Qt.Key_Equal]: () => zoomAt(middle, 1.25),
                    [Qt.Key_Minus]: () => zoomAt(middle, 0.8),
                    [Qt.Key_0]: () => zoomAt(middle, 0),
                    [Qt.Key_Left]: () => move(-48, 0),
                    [Qt.Key_Right]: () => move(48, 0),
                    [Qt.Key_Up]: () => move(0, -48),
                    [Qt.Key_Down]: () => move(0, 48)
                };
                const act = acts[event.key];
                if (!act)
                    return;
                event.accepted = true;
                act();
            }

            Picture {
                name: page.controller.imageName
                width: scroll.contentWidth
                height: scroll.contentHeight
                // As sharp as the window at twice its size, and no more memory than that takes.
                textureSize: Qt.size(Math.min(2, scroll.zoom) * scroll.width * Screen.devicePixelRatio, Math.min(2, scroll.zoom) * scroll.height * Screen.devicePixelRatio) // qmllint disable type

                // Inside, as the view around it would scroll.
                WheelHandler {
                    target: null
                    acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
                    onWheel: event => scroll.zoomAt(Qt.point(event.x - scroll.contentX, event.y - scroll.contentY), Math.pow(1.25, event.angleDelta.y / 120))
                }
                TapHandler {
                    onDoubleTapped: scroll.zoomAt(Qt.point(point.position.x - scroll.contentX, point.position.y - scroll.contentY), scroll.zoom > 1 ? 0 : 2.5)
                }
            }
        }
        PinchHandler {
            id: pinch

            property real last: 1

            target: null
            onActiveChanged: last = 1
            onActiveScaleChanged: {
                scroll.zoomAt(Qt.point(centroid.position.x, centroid.position.y), activeScale / last);
                last = activeScale;
            }
        }
        FocusRing {
            visible: scroll.activeFocus
        }
    }

    Flickable {
        id: words

        objectName: "manualLegend"
        anchors.top: page.isWide ? head.bottom : frame.bottom
        anchors.bottom: parent.bottom
        anchors.left: page.isWide ? frame.right : parent.left
        anchors.right: parent.right
        contentHeight: legend.height + 32
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: contentHeight > height || activeFocus // Not to be taken back while it has the focus.
        Accessible.role: Accessible.List
        Accessible.name: page.controller.label
        Keys.onDownPressed: contentY = Math.max(0, Math.min(contentHeight - height, contentY + 48))
        Keys.onUpPressed: contentY = Math.max(0, contentY - 48)

        Column {
            id: legend

            x: 16
            y: 16
            width: Math.min(parent.width - 32, 560)
            spacing: 12

            Repeater {
                model: page.controller.legend

                Row {
                    id: entry

                    required property int index
                    required property string modelData

                    spacing: 12
                    Accessible.role: Accessible.ListItem
                    Accessible.name: (index + 1) + ": " + modelData

                    Rectangle {
                        width: 24
                        height: 24
                        radius: 12
                        color: Theme.darkMagenta

                        Text {
                            anchors.centerIn: parent
                            text: entry.index + 1
                            font: Theme.heavy(14)
                            color: "white"
                            Accessible.ignored: true
                        }
                    }
                    Text {
                        width: legend.width - 36
                        text: entry.modelData
                        font: Theme.book(16)
                        color: Theme.label
                        wrapMode: Text.Wrap
                        Accessible.ignored: true
                    }
                }
            }
        }
    }
    FocusRing {
        anchors.fill: words
        visible: words.activeFocus
        ground: Theme.groupedBackground
    }
    ScrollThumb {
        flickable: words
        orientation: Qt.Vertical
        anchors.right: parent.right
        anchors.rightMargin: 2
    }
}
