import QtQuick
import Tavi

// Equal tabs over the open page, with a line that slides under the open one; in a wide window both pages side by side,
// without tabs. A menu that stays open beside them may take a little of their room.
Rectangle {
    id: page

    required property AppPageTabBarController controller
    readonly property bool isSideBySide: Window.width >= Theme.sideBySideWidth && width >= 900 && Window.height >= Theme.lowHeight
    readonly property real room: Math.min(width, 1200)
    readonly property Item focused: Window.activeFocusItem

    function holds(host: Item): bool {
        let item = focused;
        while (item && item !== host)
            item = item.parent;
        return item !== null;
    }

    // One page back; without tabs to where the typing is.
    function goBack(): bool {
        if (controller.selectedIndex === 0)
            return false;
        if (isSideBySide)
            first.children[0].forceActiveFocus();
        else
            controller.select(0);
        return true;
    }

    color: Theme.page
    Component.onCompleted: controller.isSideBySide = isSideBySide
    onIsSideBySideChanged: controller.isSideBySide = isSideBySide
    onFocusedChanged: {
        if (!controller.isSideBySide)
            return;
        if (holds(first))
            controller.select(0);
        else if (holds(second))
            controller.select(1);
    }
    Keys.onPressed: event => {
        const isBack = event.key === Qt.Key_Escape || event.key === Qt.Key_Back || event.matches(StandardKey.Back);
        event.accepted = isBack && goBack();
    }

    Rectangle {
        id: bar

        width: parent.width
        height: !visible ? 0 : page.Window.height < Theme.lowHeight ? Theme.lowBarHeight : 48
        visible: !page.controller.isSideBySide
        color: Theme.strongYellow
        Accessible.role: Accessible.PageTabList

        Row {
            Repeater {
                id: tabs

                model: page.controller.tabItems // qmllint disable type

                Pressable {
                    id: tab

                    required property int index
                    required property TabItem modelData

                    objectName: "tab" + index
                    width: bar.width / tabs.count
                    height: bar.height
                    enabled: modelData.enabled
                    text: modelData.title
                    accessibleRole: Accessible.PageTab
                    Accessible.selectable: true
                    Accessible.selected: index === page.controller.selectedIndex
                    onClicked: page.controller.tapTab(index)

                    background: Rectangle {
                        color: Qt.darker(bar.color, tab.down ? 1.2 : tab.isHovered ? 1.06 : 1)
                    }
                    contentItem: Text {
                        text: tab.modelData.title
                        font: tab.modelData.font
                        color: Theme.legible(tab.modelData.titleColor, bar.color)
                        horizontalAlignment: Text.AlignHCenter
                        verticalAlignment: Text.AlignVCenter
                        elide: Text.ElideRight
                    }

                    FocusRing {
                        control: tab
                        ground: bar.color
                    }
                }
            }
        }

        Rectangle {
            // In tabs, so that a change of the width takes the line along at once.
            property real position: page.controller.selectedIndex

            objectName: "tabLine"
            y: parent.height - height
            x: position * width
            width: parent.width / tabs.count
            height: 2
            color: Theme.pink

            Behavior on position  {
                NumberAnimation {
                    duration: 200
                    easing.type: Easing.OutCubic
                }
            }
        }
    }

    ControllerHost {
        id: first

        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        x: page.controller.isSideBySide ? (parent.width - page.room) / 2 : 0
        width: page.controller.isSideBySide ? Math.round(0.4 * page.room) : parent.width
        controller: page.controller.isSideBySide ? page.controller.pageAt(0) : page.controller.selectedController
    }
    ControllerHost {
        id: second

        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        anchors.left: first.right
        width: page.room - first.width
        visible: page.controller.isSideBySide
        controller: page.controller.isSideBySide ? page.controller.pageAt(1) : null
    }
}
