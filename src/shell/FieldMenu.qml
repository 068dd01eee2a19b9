import QtQuick
import Tavi

// What can be done with the text of a field, for fingers and mice; keyboards have their own keys for it.
ContextMenu {
    id: menu

    required property CalculateViewController controller

    implicitWidth: 200

    MenuEntry {
        objectName: "cut"
        text: qsTrId("Cut")
        enabled: menu.controller.isSelectionThere
        onTriggered: menu.controller.cutSelection()
    }
    MenuEntry {
        objectName: "copy"
        text: qsTrId("Copy")
        enabled: menu.controller.isSelectionThere
        onTriggered: menu.controller.copySelection()
    }
    MenuEntry {
        objectName: "paste"
        text: qsTrId("Paste")
        onTriggered: menu.controller.paste()
    }
    MenuEntry {
        objectName: "selectAll"
        text: qsTrId("Select all")
        onTriggered: menu.controller.selectAll()
    }
}
