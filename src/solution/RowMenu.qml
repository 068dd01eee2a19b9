import QtQuick
import Tavi

// What a row can be copied as, at the place that was pressed.
ContextMenu {
    id: menu

    required property SolutionViewController controller
    property int row

    function openFor(row: int, item: Item, place: point) {
        menu.row = row;
        popup(item, place.x, place.y);
    }

    MenuEntry {
        objectName: "copyRowLatex"
        text: qsTrId("copyAsLatex")
        onTriggered: menu.controller.copyRow(menu.row, RowCopy.Latex)
    }
    MenuEntry {
        objectName: "copyRowMathMl"
        text: qsTrId("copyAsMathMl")
        onTriggered: menu.controller.copyRow(menu.row, RowCopy.MathMl)
    }
    MenuEntry {
        objectName: "copyRowWords"
        text: qsTrId("copyAsWords")
        onTriggered: menu.controller.copyRow(menu.row, RowCopy.Words)
    }
    MenuEntry {
        objectName: "copyRowPicture"
        text: qsTrId("copyAsPicture")
        onTriggered: menu.controller.copyRow(menu.row, RowCopy.Picture)
    }
}
