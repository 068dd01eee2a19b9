import QtQuick
import QtQuick.Templates as T
import Tavi

// A task of the history. Its formula scrolls sideways, and behind the formula's end comes the delete button.
HistoryTableViewCell {
    id: cell

    required property int index
    required property HistoryTableViewController controller
    required property var table            // The list around, with its open row.
    required property real fontSize
    required property real shift           // By how much a dragged row pushes this one aside.
    required property bool isShiftAnimated
    required property bool isLifted        // The row is on its way under the finger.

    readonly property bool isEditing: controller.isEditing

    signal menuRequested(point place)

    function fill() {
        controller.cellForRow(cell, index);
    }

    function open() {
        if (table.openRow !== cell)
            table.closeOpenRow();
        table.openRow = cell;
        scrollTo(content.endX);
    }

    function close() {
        if (table.openRow === cell)
            table.openRow = null;
        scrollTo(0);
    }

    function settle() {
        if (table.openRow === cell)
            table.openRow = null;
        scrollTo(Math.min(content.contentX, content.formulaEndX));
    }

    function scrollBy(way) {
        scrollTo(Math.max(0, Math.min(content.formulaEndX, content.contentX + way)));
    }

    function scrollTo(x) {
        scrolling.to = x;
        scrolling.restart();
    }

    mathLabel: formula
    Accessible.role: Accessible.ListItem
    Accessible.name: row.text
    Accessible.description: ListView.section
    Accessible.focusable: true
    Accessible.onPressAction: row.clicked()
    width: ListView.view.width
    enabled: index >= 0 // One that fades out is none any more.
    height: Math.max(72, formula.implicitHeight + 12)
    opacity: isLifted ? 0 : 1
    Component.onCompleted: fill()
    Component.onDestruction: if (table.openRow === cell)
        table.openRow = null
    transform: Translate {
        y: cell.shift

        Behavior on y  {
            enabled: cell.isShiftAnimated
            NumberAnimation {
                duration: 120
                easing.type: Easing.OutCubic
            }
        }
    }

    Connections {
        target: cell.controller
        function onRowReloaded(row) {
            if (row === cell.index)
                cell.fill();
        }
    }

    Rectangle {
        x: 16
        y: parent.height - height
        width: parent.width - 32
        height: 1
        visible: cell.index < cell.table.count - 1 && cell.ListView.nextSection === cell.ListView.section
        color: Theme.hairline
    }

    IconButton {
        objectName: "deleteControl"
        x: content.x - width
        anchors.verticalCenter: parent.verticalCenter
        visible: content.x > 0
        opacity: content.x / content.editX
        focusPolicy: Qt.NoFocus
        text: deleteButton.text
        iconText: Icons.remove
        tintColor: Theme.red
        onClicked: cell.table.openRow === cell ? cell.close() : cell.open()
    }

    Flickable {
        id: content

        readonly property real editX: Theme.touchTarget + 4
        readonly property real formulaEndX: row.width - width
        readonly property real endX: contentWidth - width
        // A formula that leaves room for the delete button does not make way for it.
        readonly property real stay: Math.max(0, Math.min(contentX - formulaEndX, row.width - formula.width - 32))

        objectName: "historyContent"
        x: cell.isEditing ? editX : 0
        width: parent.width - 2 * x
        height: parent.height
        contentWidth: row.width + deleteButton.width + 24
        contentHeight: height
        flickableDirection: Flickable.HorizontalFlick
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: 6000
        interactive: cell.controller.canEditRow(cell.index)
        clip: true

        // At rest the delete button is seen either whole or not at all.
        onMovementStarted: if (cell.table.openRow !== cell)
            cell.table.closeOpenRow()
        onMovementEnded: {
            if (contentX > (formulaEndX + endX) / 2)
                cell.open();
            else if (contentX > formulaEndX || cell.table.openRow === cell)
                cell.settle();
        }

        Behavior on x  {
            NumberAnimation {
                duration: 200
                easing.type: Easing.OutCubic
            }
        }

        NumberAnimation {
            id: scrolling

            target: content
            property: "contentX"
            duration: 150
            easing.type: Easing.OutCubic
        }

        T.AbstractButton {
            id: row

            objectName: "historyRow" + cell.index
            width: Math.max(content.width, formula.implicitWidth + 32)
            height: content.height
            focusPolicy: Qt.NoFocus
            text: formula.spokenText || qsTrId("historyUntitled")
            Accessible.ignored: true // The cell says it, so that what belongs to the row lies in it.
            onPressAndHold: cell.menuRequested(Qt.point(content.x + pressX - content.contentX, pressY))
            onClicked: {
                if (cell.table.openRow)
                    cell.table.closeOpenRow();
                else if (!cell.isEditing)
                    cell.controller.didSelectRow(cell.index);
            }
            background: Rectangle {
                color: Theme.label
                opacity: row.down && !cell.isEditing ? 0.08 : 0
                radius: 8
            }

            MathLabel {
                id: formula

                objectName: "formula"
                x: 16 + content.stay
                y: (parent.height - height) / 2
                width: implicitWidth
                height: implicitHeight
                fontSize: cell.fontSize
                backgroundColor: Theme.background
                Accessible.ignored: true
            }
        }

        Pressable {
            id: deleteButton

            objectName: "deleteButton"
            x: row.width + 12
            anchors.verticalCenter: parent.verticalCenter
            width: 72
            height: 52
            focusPolicy: Qt.NoFocus
            text: qsTrId("historyDelete").arg(row.text)
            enabled: content.contentX > content.formulaEndX
            Accessible.ignored: !enabled
            onClicked: cell.table.removeRow(cell.index)
            background: Rectangle {
                radius: 8
                color: deleteButton.down ? Qt.darker(Theme.red, 1.3) : Theme.red
            }
            contentItem: Icon {
                text: Icons.trash
                color: "white"
                width: deleteButton.width
                height: deleteButton.height
            }
        }
    }

    EdgeShadow {
        objectName: "edgeShadow"
        anchors.fill: content
        flickable: content
        startX: content.stay
        endX: content.formulaEndX
    }

    Icon {
        x: content.x + content.width
        anchors.verticalCenter: parent.verticalCenter
        width: content.x
        visible: width > 0 && !cell.controller.isSearching
        opacity: content.x / content.editX
        text: Icons.menu
        color: Theme.secondaryGray
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: eventPoint => cell.menuRequested(eventPoint.position)
    }
    FocusRing {
        anchors.margins: 3
        radius: 8
        visible: cell.table.activeFocus && cell.ListView.isCurrentItem
    }
}
