import QtQuick
import QtQuick.Window
import Tavi

// The window of the application.
Window {
    id: window

    required property ViewController rootController

    width: 412
    height: 870
    minimumWidth: 320
    minimumHeight: 320
    color: Theme.page

    ControllerHost {
        anchors.fill: parent
        controller: window.rootController
    }
    ToastLayer {
        anchors.fill: parent
    }
    SpinnerOverlay {
        anchors.fill: parent
    }
}
