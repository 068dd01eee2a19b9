import QtQuick
import QtQuick.Templates as T
import Tavi

// The side menu below its head: one table whose sections have a coloured header each.
Rectangle {
    id: page

    required property LeftViewController controller

    color: Theme.brightYellow

    ListView {
        id: table

        // The row that the keyboard acts on moves, and shows it.
        function step(way) {
            currentIndex = Math.max(0, Math.min(count - 1, currentIndex + way));
            currentItem.focusReason = Qt.TabFocusReason;
        }

        objectName: "menuTable"
        anchors.fill: parent
        clip: true
        focus: true
        currentIndex: -1
        boundsBehavior: Flickable.StopAtBounds
        model: page.controller.table
        Keys.onDownPressed: step(1)
        Keys.onUpPressed: step(-1)
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("menuButton")

        section.property: "section"
        section.delegate: Rectangle {
            required property string section

            objectName: "menuHeader" + section
            width: ListView.view.width
            height: headerLabel.text ? 30 : 0
            color: Theme.strongYellow

            Text {
                id: headerLabel

                x: 3
                width: parent.width - 3
                height: parent.height
                text: page.controller.titleForHeader(Number(parent.section))
                font: Theme.medium(16)
                color: Theme.darkTitle
                verticalAlignment: Text.AlignVCenter
                elide: Text.ElideRight
                Accessible.role: Accessible.Heading
                Accessible.name: text.trim()
                Accessible.ignored: !text
            }
        }

        delegate: T.AbstractButton {
            id: row

            required property int index
            required property int section
            required property int rowInSection
            required property string title

            objectName: "menuRow " + section + " " + rowInSection
            width: ListView.view.width
            height: Theme.touchTarget
            leftPadding: 16
            rightPadding: 16
            text: title
            hoverEnabled: false
            Accessible.role: Accessible.ListItem
            Accessible.name: text
            Accessible.onPressAction: row.clicked()
            Keys.onReturnPressed: row.clicked()
            Keys.onEnterPressed: row.clicked()
            onActiveFocusChanged: if (activeFocus)
                table.currentIndex = index
            onClicked: page.controller.didSelectRow(section, rowInSection)

            // A finger hovers over nothing; the control's own hovering would stay on where it last touched.
            HoverHandler {
                id: pointer

                acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            }

            background: Rectangle {
                color: row.down ? Qt.darker(Theme.brightYellow, 1.2) : pointer.hovered ? Qt.darker(Theme.brightYellow, 1.06) : Theme.brightYellow
            }
            // The name of an application comes from afar: never as markup, never over the row's edge.
            contentItem: Text {
                text: row.text
                textFormat: Text.PlainText
                font: Theme.medium(17)
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 12
                maximumLineCount: 1
                elide: Text.ElideRight
                color: Theme.darkTitle
                verticalAlignment: Text.AlignVCenter
            }

            FocusRing {
                control: row
                ground: Theme.brightYellow
            }
        }
    }

    ScrollThumb {
        flickable: table
        orientation: Qt.Vertical
        anchors.right: parent.right
        anchors.rightMargin: 2
    }
}
