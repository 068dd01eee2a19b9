import QtQuick
import Tavi

// A faint shadow at the side where a sideways scrolling view goes on.
Item {
    id: edges

    required property Flickable flickable
    property real startX: 0 // Where what it is about begins.
    property real endX: flickable.contentWidth - flickable.width // Where what it is about has come to its end.

    clip: true

    // Lies just beyond the edge, so that only its soft side is seen.
    component Edge: Shadow {
        height: edges.height
        width: 2 * extent + 4
        cornerRadius: 2
        shadow: Theme.edgeShadow
    }

    Edge {
        x: -extent - 4
        visible: edges.flickable.contentX > edges.startX + 0.5
    }
    Edge {
        x: edges.width - extent
        visible: edges.flickable.contentX < edges.endX - 0.5
    }
}
