import QtQuick
import QtQuick.Templates as T
import Tavi

// What a row can be copied as, at the place that was pressed.
T.Menu {
    id: menu

    required property SolutionViewController controller
    property int row

    function openFor(row: int, item: Item, place: point) {
        menu.row = row;
        popup(item, place.x, place.y);
    }

    implicitWidth: 240
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    topPadding: 8
    bottomPadding: 8
    margins: 8
    modal: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    background: Rectangle {
        radius: 8
        color: Theme.groupedBackground
        border.width: 1
        border.color: Theme.hairline
    }
    contentItem: ListView {
        implicitHeight: contentHeight
        model: menu.contentModel
        currentIndex: menu.currentIndex
        interactive: false
    }

    component Entry: T.MenuItem {
        id: entry

        implicitWidth: menu.width
        implicitHeight: Theme.touchTarget
        Accessible.role: Accessible.MenuItem
        Accessible.name: text

        background: Rectangle {
            color: Theme.label
            opacity: entry.down || entry.highlighted ? 0.12 : 0
        }
        contentItem: Text {
            leftPadding: 16
            text: entry.text
            font: Theme.book(16)
            color: Theme.label
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }

    Entry {
        objectName: "copyRowLatex"
        text: qsTrId("copyAsLatex")
        onTriggered: menu.controller.copyRow(menu.row, RowCopy.Latex)
    }
    Entry {
        objectName: "copyRowMathMl"
        text: qsTrId("copyAsMathMl")
        onTriggered: menu.controller.copyRow(menu.row, RowCopy.MathMl)
    }
    Entry {
        objectName: "copyRowWords"
        text: qsTrId("copyAsWords")
        onTriggered: menu.controller.copyRow(menu.row, RowCopy.Words)
    }
    Entry {
        objectName: "copyRowPicture"
        text: qsTrId("copyAsPicture")
        onTriggered: menu.controller.copyRow(menu.row, RowCopy.Picture)
    }
}
