import QtQuick
import Tavi

// A sheet with its title and a button to close it at the top.
Item {
    id: page

    required property SheetController controller

    Heading {
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.right: closeButton.left
        height: 56
        text: page.controller.title
        font: Theme.heavy(20)
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
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
        groundColor: Theme.groupedBackground
        focus: true
        onClicked: page.controller.cancel()
    }
    Rectangle {
        y: 56
        width: parent.width
        height: 1
        color: Theme.hairline
    }
}
