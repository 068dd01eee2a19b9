import QtQuick
import Tavi

// The head of a sheet: its title and the button that closes it.
Item {
    id: head

    property alias title: label.text
    property alias closeButton: button

    signal closed

    width: parent.width
    height: 56

    Text {
        id: label

        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.right: button.left
        height: parent.height
        font: Theme.heavy(20)
        color: Theme.label
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    IconButton {
        id: button

        objectName: "closeSheetButton"
        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        text: qsTrId("Close")
        iconText: Icons.close
        tintColor: Theme.label
        groundColor: Theme.groupedBackground
        focus: true
        onClicked: head.closed()
    }
    Rectangle {
        y: parent.height - 1
        width: parent.width
        height: 1
        color: Theme.hairline
    }
}
