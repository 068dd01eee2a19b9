import QtQuick
import QtQuick.Dialogs
import Tavi

// What can be done with the picture of a solution.
Column {
    id: page

    required property ShareSheetController controller

    topPadding: 16
    bottomPadding: 8

    Heading {
        width: parent.width
        leftPadding: 24
        rightPadding: 24
        bottomPadding: 8
        text: page.controller.title
    }
    Label {
        width: parent.width
        leftPadding: 24
        rightPadding: 24
        bottomPadding: 8
        visible: text
        text: page.controller.failure
        font: Theme.medium(14)
        color: Theme.accentText
        Accessible.role: Accessible.AlertMessage
    }

    Item {
        width: parent.width
        height: formats.height + 8

        SegmentedControl {
            id: formats

            objectName: "formats"
            x: 24
            width: parent.width - 48
            selectedSegmentIndex: page.controller.format
            segments: [{
                    "name": qsTrId("sharingPicture")
                }, {
                    "name": "PDF"
                }, {
                    "name": "SVG"
                }]
            onValueChanged: index => page.controller.format = index
        }
    }

    ShareRow {
        objectName: "save"
        focus: true
        text: qsTrId("sharingSave")
        iconText: Icons.save
        onClicked: page.controller.save()
    }
    ShareRow {
        objectName: "saveAs"
        visible: page.controller.hasSaveDialog
        text: qsTrId("sharingSaveAs")
        iconText: Icons.save
        onClicked: fileDialog.active = true
    }
    ShareRow {
        objectName: "copy"
        text: qsTrId("sharingCopy")
        iconText: Icons.copy
        onClicked: page.controller.copy()
    }
    ShareRow {
        objectName: "open"
        text: qsTrId("sharingOpen")
        iconText: Icons.open
        onClicked: page.controller.open()
    }
    ShareRow {
        objectName: "copyLatex"
        text: qsTrId("copyAsLatex")
        iconText: Icons.copy
        onClicked: page.controller.copyLatex()
    }
    ShareRow {
        objectName: "closeSheet"
        text: qsTrId("Cancel")
        iconText: Icons.close
        onClicked: page.controller.cancel()
    }

    component ShareRow: SheetRow {
        enabled: !page.controller.isBusy
    }

    // The dialog takes long to load, and mostly is not needed.
    Loader {
        id: fileDialog

        active: false
        sourceComponent: FileDialog {
            fileMode: FileDialog.SaveFile
            title: qsTrId("sharingSaveAs")
            selectedFile: page.controller.proposedFile
            acceptLabel: qsTrId("sharingSaveHere")
            rejectLabel: qsTrId("Cancel")
            Component.onCompleted: open()
            onAccepted: {
                page.controller.saveAs(selectedFile);
                fileDialog.active = false;
            }
            onRejected: fileDialog.active = false
        }
    }
}
