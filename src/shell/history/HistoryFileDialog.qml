import QtQuick
import QtQuick.Dialogs
import Tavi

// The desktop's dialog for a file that a history goes out to or comes in from.
FileDialog {
    id: dialog

    required property HistoryTransfer transfer
    required property bool isSaving

    signal finished

    fileMode: isSaving ? FileDialog.SaveFile : FileDialog.OpenFile
    title: isSaving ? qsTrId("historyExport") : qsTrId("historyImport")
    nameFilters: ["JSON (*.json)"]
    acceptLabel: isSaving ? qsTrId("sharingSaveHere") : qsTrId("sharingOpen")
    rejectLabel: qsTrId("Cancel")
    Component.onCompleted: {
        if (isSaving)
            selectedFile = transfer.proposedFile();
        else
            currentFolder = transfer.folder;
        open();
    }
    onAccepted: {
        if (isSaving)
            transfer.exportTo(selectedFile);
        else
            transfer.importFrom(selectedFile);
        finished();
    }
    onRejected: finished()
}
