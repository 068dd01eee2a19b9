import QtQuick
import QtQuick.Dialogs
import QtQuick.Templates as T
import Tavi

// What can be done with the picture of a solution, as a sheet that slides in at the foot of the window.
Item {
    id: page

    required property ShareSheetController controller

    T.Popup {
        id: sheet

        property real risen

        parent: page
        x: (page.width - width) / 2
        y: page.height - risen * height
        width: Math.min(page.width, 480)
        height: content.implicitHeight + topPadding + bottomPadding
        topPadding: 16
        bottomPadding: 8
        modal: true
        dim: true
        focus: true
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
        visible: true
        onClosed: page.controller.close()

        enter: Transition {
            NumberAnimation {
                property: "risen"
                to: 1
                duration: 200
                easing.type: Easing.OutCubic
            }
        }
        exit: Transition {
            NumberAnimation {
                property: "risen"
                to: 0
                duration: 150
                easing.type: Easing.InCubic
            }
        }

        T.Overlay.modal: Rectangle {
            color: Qt.rgba(0, 0, 0, 0.5)
        }
        background: Rectangle {
            color: Theme.groupedBackground
            radius: 14

            Rectangle {
                anchors.bottom: parent.bottom
                width: parent.width
                height: parent.radius
                color: parent.color
            }
        }
        contentItem: Column {
            id: content

            Accessible.role: Accessible.Dialog
            Accessible.name: heading.text

            Text {
                id: heading

                width: parent.width
                leftPadding: 24
                rightPadding: 24
                bottomPadding: 8
                text: qsTrId("shareButton")
                font: Theme.heavy(18)
                color: Theme.label
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Text {
                width: parent.width
                leftPadding: 24
                rightPadding: 24
                bottomPadding: 8
                visible: text
                text: page.controller.failure
                font: Theme.medium(14)
                color: Theme.accentText
                wrapMode: Text.Wrap
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
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
                            "name": qsTrId("sharingPicture"),
                            "picture": pictureName
                        }, {
                            "name": "PDF",
                            "picture": pdfName
                        }, {
                            "name": "SVG",
                            "picture": svgName
                        }]
                    onValueChanged: index => page.controller.format = index
                }
            }

            SheetRow {
                objectName: "save"
                focus: true
                text: qsTrId("sharingSave")
                iconText: Icons.save
                onClicked: page.controller.save()
            }
            SheetRow {
                objectName: "saveAs"
                visible: page.controller.hasSaveDialog
                text: qsTrId("sharingSaveAs")
                iconText: Icons.save
                onClicked: fileDialog.active = true
            }
            SheetRow {
                objectName: "copy"
                text: qsTrId("sharingCopy")
                iconText: Icons.copy
                onClicked: page.controller.copy()
            }
            SheetRow {
                objectName: "open"
                text: qsTrId("sharingOpen")
                iconText: Icons.open
                onClicked: page.controller.open()
            }
            SheetRow {
                objectName: "copyLatex"
                text: qsTrId("copyAsLatex")
                iconText: Icons.copy
                onClicked: page.controller.copyLatex()
            }
            SheetRow {
                objectName: "closeSheet"
                text: qsTrId("Cancel")
                iconText: Icons.close
                onClicked: sheet.close()
            }
        }
    }

    component FormatName: Text {
        font: Theme.medium(14)
        color: parent.color
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    Component {
        id: pictureName

        FormatName {
            text: qsTrId("sharingPicture")
        }
    }
    Component {
        id: pdfName

        FormatName {
            text: "PDF"
        }
    }
    Component {
        id: svgName

        FormatName {
            text: "SVG"
        }
    }

    component SheetRow: T.AbstractButton {
        id: row

        property string iconText

        width: content.width
        height: 56
        enabled: !page.controller.isBusy
        opacity: enabled ? 1 : 0.4
        Accessible.role: Accessible.Button
        Accessible.name: text
        Keys.onDownPressed: nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)
        Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
        Keys.onReturnPressed: click()

        background: Rectangle {
            color: Theme.label
            opacity: row.down ? 0.12 : 0
        }
        contentItem: Row {
            leftPadding: 24
            spacing: 24

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                text: row.iconText
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: row.text
                font: Theme.book(16)
                color: Theme.label
                Accessible.ignored: true
            }
        }

        FocusRing {
            control: row
        }
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
