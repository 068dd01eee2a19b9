import QtQuick
import Tavi

// A row of the settings with a number between a button that makes it smaller and one that makes it larger.
Item {
    id: row

    required property string text
    required property int value
    required property int least
    required property int most
    required property string smallerName
    required property string largerName

    signal stepped(int way)

    width: parent.width
    height: Math.max(Theme.touchTarget, label.implicitHeight + 16)

    Label {
        id: label

        x: 16
        width: buttons.x - 24
        anchors.verticalCenter: parent.verticalCenter
        text: row.text
    }
    Row {
        id: buttons

        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter

        IconButton {
            objectName: "smaller"
            text: row.smallerName
            iconText: Icons.minus
            enabled: row.value > row.least
            onClicked: row.stepped(-1)
        }
        Label {
            objectName: "stepperValue"
            width: 56
            anchors.verticalCenter: parent.verticalCenter
            horizontalAlignment: Text.AlignHCenter
            text: row.value + "\u202f%"
        }
        IconButton {
            objectName: "larger"
            text: row.largerName
            iconText: Icons.plus
            enabled: row.value < row.most
            onClicked: row.stepped(1)
        }
    }
}
