import QtQuick
import Tavi

// The pages side by side, one of them in sight; under them dots and the button. In a low window a picture stands
// beside its words.
Rectangle {
    id: page

    required property OnboardViewController controller
    readonly property var appearance: controller.appearance
    readonly property bool isLow: width > 1.2 * height

    color: appearance.backgroundColor
    radius: controller.isSheet ? 14 : 0

    ListView {
        id: list

        objectName: "onboardPages"
        anchors.fill: parent
        anchors.topMargin: page.controller.isSheet ? 48 : 16
        anchors.bottomMargin: foot.height + foot.anchors.bottomMargin
        orientation: ListView.Horizontal
        snapMode: ListView.SnapOneItem
        highlightRangeMode: ListView.StrictlyEnforceRange
        highlightMoveDuration: 200
        highlightResizeDuration: 0 // It is not seen, but would go on for two seconds, a frame after the other.
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        model: page.controller.pages
        currentIndex: page.controller.currentPage
        onCurrentIndexChanged: page.controller.currentPage = currentIndex
        onWidthChanged: positionViewAtIndex(page.controller.currentPage, ListView.Beginning)

        delegate: Item {
            id: sheet

            required property int index
            required property var modelData
            readonly property real edge: Math.min(32, 0.06 * width)
            readonly property real column: Math.min(560, width - 2 * edge)

            width: list.width
            height: list.height
            Accessible.role: Accessible.Pane
            Accessible.name: modelData.description
            Accessible.ignored: index !== list.currentIndex

            Picture {
                id: picture

                name: sheet.modelData.imageName
                x: page.isLow ? sheet.edge : (parent.width - width) / 2
                y: page.isLow ? 0 : Math.max(0, 0.36 * parent.height - height / 2)
                width: page.isLow ? 0.5 * (parent.width - 3 * sheet.edge) : Math.min(440, sheet.column)
                height: page.isLow ? parent.height : Math.min(0.62 * parent.height, 0.8 * width)
            }
            Column {
                x: page.isLow ? picture.x + picture.width + sheet.edge : (parent.width - width) / 2
                y: page.isLow ? Math.max(0, (parent.height - height) / 2) : picture.y + picture.height + 24
                width: page.isLow ? picture.width : sheet.column
                spacing: 12

                Text {
                    width: parent.width
                    visible: text
                    text: sheet.modelData.title
                    font: page.appearance.titleFont
                    color: page.appearance.titleColor
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                    Accessible.ignored: true
                }
                Text {
                    objectName: "onboardText" + sheet.index
                    width: parent.width
                    text: sheet.modelData.description
                    font: page.appearance.textFont
                    color: page.appearance.textColor
                    wrapMode: Text.Wrap
                    lineHeight: 1.15
                    horizontalAlignment: page.isLow ? Text.AlignLeft : Text.AlignHCenter
                    Accessible.ignored: true
                }
            }
        }
    }

    IconButton {
        objectName: "sheetCloseButton"
        anchors.right: parent.right
        anchors.margins: 4
        y: 4
        visible: page.controller.isSheet
        text: qsTrId("Close")
        iconText: Icons.close
        tintColor: Theme.label
        groundColor: page.appearance.backgroundColor
        onClicked: page.controller.cancel()
    }

    Item {
        id: foot

        anchors.bottom: parent.bottom
        anchors.bottomMargin: page.isLow ? 8 : Math.min(32, 0.04 * page.height)
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width - 32, 560)
        height: page.isLow ? button.height + 8 : dots.height + button.height + 16

        Row {
            id: dots

            x: page.isLow ? 0 : (parent.width - width) / 2
            y: page.isLow ? (button.height - height) / 2 : 0
            height: 24
            spacing: 10
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTrId("pageOf").arg(list.currentIndex + 1).arg(list.count)

            Repeater {
                model: list.count

                Rectangle {
                    required property int index
                    readonly property bool isCurrent: index === list.currentIndex

                    y: (parent.height - height) / 2
                    width: isCurrent ? 22 : 8
                    height: 8
                    radius: 4
                    color: isCurrent ? page.appearance.tintColor : Theme.hairline

                    Behavior on width  {
                        NumberAnimation {
                            duration: 150
                        }
                    }
                }
            }
        }
        ActionButton {
            id: button

            objectName: "onboardAdvance"
            anchors.bottom: parent.bottom
            x: page.isLow ? parent.width - width : (parent.width - width) / 2
            width: Math.max(180, implicitWidth + 32)
            height: 52
            radius: height / 2
            focus: true
            text: page.controller.pages[list.currentIndex].advanceButtonTitle
            font: page.appearance.advanceButtonFont
            groundColor: page.appearance.backgroundColor
            View.titleColor: page.appearance.advanceButtonColor
            View.shadow: page.appearance.advanceButtonShadow
            onClicked: page.controller.advance()
            Keys.onRightPressed: list.incrementCurrentIndex()
            Keys.onLeftPressed: list.decrementCurrentIndex()

            Rectangle {
                anchors.fill: parent
                radius: parent.radius
                color: "transparent"
                border.width: 2
                border.color: page.appearance.tintColor
            }
        }
    }
}
