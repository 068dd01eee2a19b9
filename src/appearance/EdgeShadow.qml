import QtQuick
import Tavi

// A faint shadow at the side where a sideways scrolling view goes on.
Item {
    id: edges

    required property Flickable flickable

    component Edge: Rectangle {
        property bool fromLeft: true
        readonly property color dark: Theme.isDark ? Qt.rgba(1, 1, 1, 0.22) : Qt.rgba(0, 0, 0, 0.16)
        readonly property color clear: Qt.rgba(dark.r, dark.g, dark.b, 0)

        width: 14
        height: parent.height
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: fromLeft ? dark : clear }
            GradientStop { position: 1; color: fromLeft ? clear : dark }
        }
    }

    Edge {
        visible: edges.flickable.contentX > 0.5
    }
    Edge {
        x: parent.width - width
        fromLeft: false
        visible: edges.flickable.contentX < edges.flickable.contentWidth - edges.flickable.width - 0.5
    }
}
