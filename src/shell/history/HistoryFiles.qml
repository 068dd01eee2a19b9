import QtQuick
import Tavi

// Takes the history out and in, by way of the desktop's dialog where it has one. That takes long to load, and mostly
// is not needed.
Loader {
    id: files

    required property HistoryTransfer transfer

    function ask(isSaving: bool) {
        setSource("HistoryFileDialog.qml", {
                "transfer": transfer,
                "isSaving": isSaving
            });
    }

    function exportHistory() {
        if (transfer.hasFileDialog)
            ask(true);
        else
            transfer.exportTo(transfer.proposedFile());
    }

    function importHistory() {
        if (transfer.hasFileDialog)
            ask(false);
        else
            transfer.chooseFile();
    }

    Connections {
        target: files.item
        ignoreUnknownSignals: true
        function onFinished() {
            files.source = "";
        }
    }
}
