import QtQuick
import Tavi

// What a task can be copied as, at the place that was pressed.
ContextMenu {
    id: menu

    required property HistoryTableViewController controller
    property int row

    function openFor(row: int, item: Item, place: point) {
        menu.row = row;
        popup(item, place.x, place.y);
    }

    MenuEntry {
        objectName: "copyTyped"
        text: qsTrId("copyAsTyped")
        onTriggered: menu.controller.copyRow(menu.row, HistoryTableViewController.Typed)
    }
    MenuEntry {
        objectName: "copyLatex"
        text: qsTrId("copyAsLatex")
        onTriggered: menu.controller.copyRow(menu.row, HistoryTableViewController.Latex)
    }
}
