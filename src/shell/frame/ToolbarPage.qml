import QtQuick
import Tavi

// One screen under a toolbar.
Item {
    id: page

    required property BasicToolbarController controller
    readonly property Toolbar toolbar: controller.toolbar
    readonly property bool isLow: Window.height < Theme.lowHeight

    Rectangle {
        id: statusStrip

        width: parent.width
        height: visible ? 24 : 0
        visible: page.toolbar.statusBarColor.a > 0 && !page.isLow
        color: page.toolbar.statusBarColor
    }

    Rectangle {
        id: bar

        anchors.top: statusStrip.bottom
        width: parent.width
        height: page.isLow ? Theme.lowBarHeight : page.toolbar.height
        color: page.toolbar.backgroundColor
        Accessible.role: Accessible.ToolBar
        Keys.forwardTo: Array.from(content.children) // so that keys for the page, such as Back, mean the same here

        Item {
            id: strip

            anchors.fill: parent
            anchors.topMargin: page.isLow ? 0 : page.toolbar.topInset

            Row {
                id: left

                anchors.left: parent.left
                anchors.leftMargin: 4
                anchors.verticalCenter: parent.verticalCenter
                Repeater {
                    model: page.toolbar.leftViews // qmllint disable type
                    delegate: barButton
                }
            }
            Heading {
                anchors.left: left.right
                anchors.right: right.left
                anchors.margins: 12
                anchors.verticalCenter: parent.verticalCenter
                text: page.toolbar.title
                font: page.toolbar.titleFont
                color: Theme.legible(page.toolbar.titleColor, bar.color)
                wrapMode: Text.NoWrap
                elide: Text.ElideRight
                fontSizeMode: page.toolbar.shrinksTitle ? Text.HorizontalFit : Text.FixedSize
                minimumPixelSize: 12
                Accessible.name: text.trim()
            }
            Row {
                id: right

                anchors.right: parent.right
                anchors.rightMargin: 4
                anchors.verticalCenter: parent.verticalCenter
                Repeater {
                    model: page.toolbar.rightViews // qmllint disable type
                    delegate: barButton
                }
            }
        }
    }

    Component {
        id: barButton

        IconButton {
            required property ToolbarButton modelData

            // How far the button would reach below a bar whose contents stand at its foot.
            readonly property real excess: Math.max(0, (height - (bar.height - strip.anchors.topMargin)) / 2)

            objectName: modelData.accessibilityIdentifier
            height: Math.min(implicitHeight, bar.height)
            transform: Translate {
                y: -excess
            }
            topPadding: 2 * excess
            text: modelData.title
            iconText: modelData.icon ? Icons[modelData.icon] : ""
            tintColor: Theme.legible(modelData.tintColor, bar.color)
            groundColor: bar.color
            isOn: modelData.isOn
            onClicked: modelData.tap()
        }
    }

    ControllerHost {
        id: content

        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        controller: page.controller.rootController
    }
}
