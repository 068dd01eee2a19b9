import QtQuick
import Tavi

// What stands over the history: the field that searches it, and what else can be done with all of it.
Item {
    id: bar

    required property HistoryTableViewController controller
    property bool canSearch: true
    readonly property bool isInUse: field.activeFocus || controller.isSearching

    signal finished

    function search() {
        field.forceActiveFocus(Qt.ShortcutFocusReason);
        field.selectAll();
    }

    function leave() {
        field.clear();
        finished();
    }

    height: Theme.touchTarget

    SearchField {
        id: field

        objectName: "historySearch"
        anchors.left: parent.left
        anchors.right: more.left
        visible: bar.canSearch
        name: qsTrId("historySearch")
        onTextChanged: bar.controller.searchText = text
        onActiveFocusChanged: if (activeFocus)
            bar.controller.prepareSearch()
        Keys.onReturnPressed: bar.finished()
        Keys.onEnterPressed: bar.finished()
        Keys.onDownPressed: bar.finished()
    }
    IconButton {
        id: more

        objectName: "historyMore"
        anchors.right: parent.right
        text: qsTrId("historyMore")
        iconText: Icons.more
        tintColor: Theme.legible(Theme.label, Theme.page)
        groundColor: Theme.page
        onClicked: {
            menu.active = true;
            (menu.item as ContextMenu).popup(more, more.width - (menu.item as ContextMenu).width, more.height);
        }
    }

    // Mostly not needed, and not on the way to the first sight of the page.
    Loader {
        id: menu

        active: false
        sourceComponent: ContextMenu {
            MenuEntry {
                objectName: "exportHistory"
                text: qsTrId("historyExport")
                onTriggered: files.exportHistory()
            }
            MenuEntry {
                objectName: "importHistory"
                text: qsTrId("historyImport")
                onTriggered: files.importHistory()
            }
        }
    }
    HistoryFiles {
        id: files

        transfer: bar.controller.transfer
    }

    // How much is found, once the typing pauses, for those who do not see it.
    Item {
        id: found

        property string words

        objectName: "foundRows"
        Accessible.role: Accessible.AlertMessage
        Accessible.name: words
        Accessible.ignored: !words
    }
    Timer {
        id: pause

        interval: 700
        onTriggered: {
            found.words = bar.controller.isSearching ? qsTrId("historyFound").arg(bar.controller.table.rowCount()) : "";
            if (found.words)
                ViewManager.announce(found);
        }
    }
    Connections {
        target: bar.controller
        function onSearchChanged() {
            if (bar.controller.isSearchThrough || !bar.controller.isSearching)
                pause.restart();
        }
    }
}
