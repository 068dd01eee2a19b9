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
    title: qsTrId("Tavi Solver")
    color: Theme.page

    ControllerHost {
        anchors.fill: parent
        controller: window.rootController
        Accessible.role: Accessible.Pane
    }
    SpinnerOverlay {
        parent: window.contentItem
    }
    ToastLayer {
        parent: window.contentItem
    }
}
