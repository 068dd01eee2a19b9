import QtQuick
import Tavi

// What a row can be copied as, and reading aloud from it, at the place that was pressed.
ContextMenu {
    id: menu

    required property SolutionViewController controller
    property int row
    property bool canRead

    function openFor(row: int, item: Item, place: point) {
        menu.row = row;
        controller.reader.prepare();
        canRead = controller.reader.isOffered;
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
    // While it is not known whether there is a voice it cannot be chosen yet.
    MenuEntry {
        objectName: "readRowAloud"
        height: visible ? implicitHeight : 0
        visible: menu.canRead
        enabled: menu.controller.reader.isReady
        text: qsTrId("readAloud")
        onTriggered: menu.controller.reader.readFrom(menu.row)
    }
}
