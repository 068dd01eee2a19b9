import QtQuick
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
            currentItem?.forceActiveFocus(Qt.TabFocusReason);
        }

        objectName: "menuTable"
        anchors.fill: parent
        clip: true
        focus: true
        currentIndex: -1
        highlightMoveDuration: 0
        boundsBehavior: Flickable.StopAtBounds
        model: page.controller.table
        section.property: "section"
        // A menu that opens begins at a row, not at the table as a whole.
        onActiveFocusChanged: {
            if (activeFocus && Window.activeFocusItem === table)
                step(0);
        }
        Keys.onDownPressed: step(1)
        Keys.onUpPressed: step(-1)
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("menuButton")

        // A header stands with the first row of its section, so that it is also read out before it.
        delegate: FocusScope {
            id: cell

            required property int index
            required property int section
            required property int rowInSection
            required property string title

            width: ListView.view.width
            height: header.height + row.height

            Rectangle {
                id: header

                objectName: "menuHeader" + cell.section
                width: parent.width
                height: visible ? 30 : 0
                visible: cell.rowInSection === 0 && headerLabel.text
                color: Theme.strongYellow

                Heading {
                    id: headerLabel

                    x: 3
                    width: parent.width - 3
                    height: parent.height
                    text: page.controller.titleForHeader(cell.section)
                    font: Theme.medium(16)
                    color: Theme.darkTitle
                    wrapMode: Text.NoWrap
                    elide: Text.ElideRight
                    verticalAlignment: Text.AlignVCenter
                    Accessible.name: text.trim()
                }
            }

            Pressable {
                id: row

                objectName: "menuRow " + cell.section + " " + cell.rowInSection
                y: header.height
                width: parent.width
                height: Theme.touchTarget
                leftPadding: 16
                rightPadding: 16
                text: cell.title
                focus: true
                accessibleRole: Accessible.ListItem
                onActiveFocusChanged: {
                    if (activeFocus)
                        table.currentIndex = cell.index;
                }
                onClicked: page.controller.didSelectRow(cell.section, cell.rowInSection)

                background: Rectangle {
                    color: Qt.darker(Theme.brightYellow, row.down ? 1.2 : row.isHovered ? 1.06 : 1)
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
    }

    ScrollThumb {
        flickable: table
        orientation: Qt.Vertical
        anchors.right: parent.right
        anchors.rightMargin: 2
    }
}
