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
        isCovered: drawer.dim && drawer.visible
        Accessible.role: Accessible.Pane
    }

    T.Drawer {
        id: drawer

        // While the drawer itself tells that it comes or goes, a finger may be moving it.
        property bool isTelling: false

        // The menu is made when it is first seen.
        property bool isMade: false

        // Beside the pages it takes the keyboard only where a key opened it.
        property bool isByKey: false

        function tell(isOpened) {
            isTelling = true;
            page.controller.isLeftViewOpened = isOpened;
            isTelling = false;
        }

        width: Math.min(304, 0.8 * page.width)
        height: page.height
        edge: Qt.LeftEdge
        // Not below what is presented, from which it would keep the wheel.
        modal: dim && !page.controller.presentedController
        dim: !page.isWide
        focus: dim
        closePolicy: dim ? T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside : T.Popup.NoAutoClose
        Component.onCompleted: contentItem.parent.Accessible.name = qsTrId("menuButton")
        onAboutToShow: {
            isMade = true;
            isByKey = !dim && KeyboardUse.isCurrent;
            tell(true);
        }
        onAboutToHide: tell(false)
        onOpened: if (isByKey)
            forceActiveFocus(Qt.TabFocusReason)
        onClosed: ViewManager.restoreFocus(page.nextItemInFocusChain())

        enter: slide
        exit: slide
        T.Overlay.modal: Veil {
        }
        T.Overlay.modeless: Veil {
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
            controller: drawer.isMade ? page.controller.leftController : null
            Accessible.role: Accessible.Pane
        }

        Transition {
            id: slide

            NumberAnimation {
                duration: 250
                easing.type: Easing.OutCubic
            }
        }

        Connections {
            target: page.controller
            enabled: !drawer.isTelling
            function onLeftViewChanged() {
                if (page.controller.isLeftViewOpened)
                    drawer.open();
                else
                    drawer.close();
            }
        }
    }
}
