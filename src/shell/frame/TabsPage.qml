import QtQuick
import Tavi

// Equal tabs over the open page, with a line that slides under the open one.
Rectangle {
    id: page

    required property AppPageTabBarController controller

    color: Theme.page

    Rectangle {
        id: bar

        width: parent.width
        height: page.Window.height < Theme.lowHeight ? Theme.lowBarHeight : 48
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
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        controller: page.controller.selectedController
    }
}
