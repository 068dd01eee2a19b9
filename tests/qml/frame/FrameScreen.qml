import QtQuick
import Tavi

// The frame of the application as the stage sets it up, with what lies over it.
Item {
    readonly property Item holder: pages

    width: 412
    height: 800

    Item {
        id: pages

        anchors.fill: parent
    }
    SpinnerOverlay {
    }
    ToastLayer {
    }
}
