import QtQuick
import QtQuick.Templates as T
import Tavi

// What a controller presents: its page over the window, in the place and with the movement of its style.
T.Popup {
    id: popup

    required property ViewController controller
    readonly property int style: controller.presentationStyle
    readonly property bool isCard: style === ViewController.Alert
    readonly property bool isHigh: style === ViewController.PageSheet || style === ViewController.FormSheet
    readonly property bool isSheet: isHigh || style === ViewController.ActionSheet
    readonly property bool isFitted: isCard || style === ViewController.ActionSheet
    // A window that closes takes the place away before the popup.
    readonly property size room: parent ? Qt.size(parent.width, parent.height) : Qt.size(0, 0)
    readonly property bool isWide: room.width >= Theme.tabletWidth
    readonly property bool isAtFoot: isSheet && !(isHigh && isWide)
    readonly property real restY: isAtFoot ? room.height - height : (room.height - height) / 2
    property real risen: 1

    function wanted(full) {
        switch (style) {
        case ViewController.Alert:
            return Qt.size(Math.min(320, full.width - 48), Math.min(host.implicitHeight, full.height - 32));
        case ViewController.ActionSheet:
            return Qt.size(Math.min(480, full.width), Math.min(host.implicitHeight, full.height - 32));
        case ViewController.PageSheet:
            return isWide ? Qt.size(Theme.tabletWidth - 64, full.height - 64) : Qt.size(full.width, full.height - 24);
        case ViewController.FormSheet:
            return isWide ? Qt.size(480, Math.min(640, full.height - 64)) : Qt.size(full.width, full.height - 24);
        default:
            return full;
        }
    }

    x: (room.width - width) / 2
    y: room.height - risen * (room.height - restY)
    z: 1 // Over an open drawer.
    width: wanted(room).width
    height: wanted(room).height
    // Only the uppermost: another below it would keep the wheel from it.
    modal: !controller.presentedController
    dim: isCard || isSheet
    focus: true
    visible: true
    closePolicy: style === ViewController.ActionSheet && !controller.presentedController ? T.Popup.CloseOnPressOutside : T.Popup.NoAutoClose
    enter: !controller.isPresentationAnimated ? null : isCard || style === ViewController.OverCurrentContext ? fadeIn : rise
    exit: !controller.isPresentationAnimated || isCard ? null : style === ViewController.OverCurrentContext ? fadeOut : sink
    Component.onCompleted: {
        contentItem.parent.Accessible.name = controller.title;
        controller.presentationShown();
    }
    onClosed: {
        ViewManager.restoreFocus();
        if (!controller.isLeaving)
            controller.cancel();
        controller.presentationGone();
    }

    T.Overlay.modal: Veil {
    }
    T.Overlay.modeless: Veil {
    }
    background: Rectangle {
        objectName: "sheet"
        visible: popup.isCard || popup.isSheet || popup.style === ViewController.FullScreen
        radius: popup.isCard || popup.isSheet ? 14 : 0
        color: radius > 0 ? Theme.groupedBackground : Theme.page

        Rectangle {
            visible: popup.isAtFoot
            anchors.bottom: parent.bottom
            width: parent.width
            height: parent.radius
            color: parent.color
        }
    }
    contentItem: FocusScope {
        focus: true
        Keys.onEscapePressed: popup.controller.cancel()
        Keys.onBackPressed: popup.controller.cancel()
        Keys.onUpPressed: scroll.scrollBy(-48)
        Keys.onDownPressed: scroll.scrollBy(48)

        // A card or a sheet that is higher than the window scrolls, also to what the keyboard goes to.
        Flickable {
            id: scroll

            readonly property Item current: popup.activeFocus ? Window.activeFocusItem : null

            function scrollBy(way: real) {
                contentY = Math.max(0, Math.min(contentHeight - height, contentY + way));
            }

            objectName: "sheetScroll"
            anchors.fill: parent
            contentHeight: popup.isFitted ? host.implicitHeight : height
            boundsBehavior: Flickable.StopAtBounds
            interactive: contentHeight > height
            clip: interactive
            onCurrentChanged: {
                if (!current || !interactive)
                    return;
                const top = current.mapToItem(host, 0, 0).y;
                contentY = Math.max(Math.min(contentY, top), top + current.height - height);
            }

            ControllerHost {
                id: host

                width: scroll.width
                height: scroll.contentHeight
                controller: popup.controller
                Accessible.role: Accessible.Pane
            }
        }
        ScrollThumb {
            objectName: "sheetThumb"
            flickable: scroll
            orientation: Qt.Vertical
            anchors.right: parent.right
            anchors.rightMargin: 3
        }
    }

    Connections {
        target: popup.controller
        function onLeavingChanged() {
            popup.close();
        }
    }

    Transition {
        id: rise

        NumberAnimation {
            property: "risen"
            from: 0
            to: 1
            duration: 200
            easing.type: Easing.OutCubic
        }
    }
    Transition {
        id: sink

        NumberAnimation {
            property: "risen"
            to: 0
            duration: 150
            easing.type: Easing.InCubic
        }
    }
    Transition {
        id: fadeIn

        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: 150
        }
    }
    Transition {
        id: fadeOut

        NumberAnimation {
            property: "opacity"
            to: 0
            duration: 150
        }
    }
}
