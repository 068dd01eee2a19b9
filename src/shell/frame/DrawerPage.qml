import QtQuick
import QtQuick.Templates as T
import Tavi

// The pages, and the side menu that slides over them; in a wide window it stays open beside them.
Item {
    id: page

    required property AppNavigationDrawerController controller
    readonly property bool isWide: width >= Theme.tabletWidth

    ControllerHost {
        x: page.isWide ? drawer.width * drawer.position : 0
        width: parent.width - x
        height: parent.height
        controller: page.controller.rootController
    }

    T.Drawer {
        id: drawer

        width: Math.min(304, 0.8 * page.width)
        height: page.height
        edge: Qt.LeftEdge
        modal: !page.isWide
        dim: modal
        focus: modal
        closePolicy: modal ? T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside : T.Popup.NoAutoClose
        onAboutToShow: page.controller.isLeftViewOpened = true
        onAboutToHide: page.controller.isLeftViewOpened = false

        enter: Transition {
            NumberAnimation {
                duration: 250
                easing.type: Easing.OutCubic
            }
        }
        exit: Transition {
            NumberAnimation {
                duration: 250
                easing.type: Easing.OutCubic
            }
        }

        T.Overlay.modal: Rectangle {
            color: Qt.rgba(0, 0, 0, 0.5)
        }
        background: Item {
            Shadow {
                x: parent.width - extent - cornerRadius
                width: 2 * extent + cornerRadius
                height: parent.height
                cornerRadius: 2
                shadow: Theme.edgeShadow
            }
        }
        contentItem: ControllerHost {
            objectName: "sideMenu"
            controller: page.controller.leftController
        }

        Connections {
            target: page.controller
            function onLeftViewChanged() {
                if (page.controller.isLeftViewOpened)
                    drawer.open();
                else
                    drawer.close();
            }
        }
    }
}
