import QtQuick
import QtQuick.Templates as T
import Tavi

// A sheet over the darkened window, with its title and a button to close it at the top.
Item {
    id: page

    required property SheetController controller

    T.Popup {
        parent: page
        x: (page.width - width) / 2
        y: (page.height - height) / 2
        width: Math.min(540, page.width - 32)
        height: Math.min(240, page.height - 96)
        modal: true
        dim: true
        focus: true
        visible: true
        closePolicy: T.Popup.CloseOnEscape
        onClosed: page.controller.dismiss()

        T.Overlay.modal: Rectangle {
            color: Qt.rgba(0, 0, 0, 0.5)
        }
        background: Rectangle {
            objectName: "sheet"
            radius: 14
            color: Theme.groupedBackground
        }
        contentItem: Item {
            Accessible.role: Accessible.Dialog
            Accessible.name: page.controller.title

            Text {
                anchors.left: parent.left
                anchors.leftMargin: 16
                anchors.right: closeButton.left
                height: 56
                text: page.controller.title
                font: Theme.heavy(20)
                color: Theme.label
                elide: Text.ElideRight
                verticalAlignment: Text.AlignVCenter
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            IconButton {
                id: closeButton

                objectName: "sheetCloseButton"
                anchors.right: parent.right
                anchors.rightMargin: 4
                height: 56
                text: qsTrId("Close")
                font: Theme.heavy(16)
                tintColor: Theme.accentText
                focus: true
                onClicked: page.controller.dismiss()
            }
            Rectangle {
                y: 56
                width: parent.width
                height: 1
                color: Theme.hairline
            }
        }
    }
}
