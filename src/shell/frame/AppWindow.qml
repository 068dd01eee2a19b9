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

    // What lies over the pages, each made when it is first wanted.
    Component {
        id: spinner

        SpinnerOverlay {
        }
    }
    Component {
        id: toast

        ToastLayer {
        }
    }
    Connections {
        id: layers

        property SpinnerOverlay spinner
        property ToastLayer toast

        target: ViewManager
        function onSpinnerChanged() {
            if (!layers.spinner)
                layers.spinner = spinner.createObject(window.contentItem);
        }
        function onToastChanged() {
            if (!layers.toast)
                layers.toast = toast.createObject(window.contentItem);
        }
    }
}
