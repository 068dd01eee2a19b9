import QtQuick
import QtQuick.Templates as T
import Tavi

// A field for words to search for.
T.TextField {
    id: field

    property string name

    implicitHeight: Theme.touchTarget
    leftPadding: Theme.touchTarget
    rightPadding: clearButton.visible ? Theme.touchTarget : 16
    font: Theme.book(16)
    color: Theme.label
    selectionColor: Theme.strongYellow
    selectedTextColor: Theme.darkTitle
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    maximumLength: 200
    inputMethodHints: Qt.ImhNoPredictiveText
    Accessible.role: Accessible.EditableText
    Accessible.name: name
    Accessible.searchEdit: true

    background: Rectangle {
        radius: height / 2
        color: Theme.background
        border.width: field.activeFocus ? 2 : 0
        border.color: Theme.legible(Theme.focus, Theme.background)
    }

    Icon {
        width: Theme.touchTarget
        height: parent.height
        text: Icons.search
        color: Theme.legible(Theme.secondaryGray, Theme.background)
    }
    Text {
        x: field.leftPadding
        width: field.width - x - field.rightPadding
        height: parent.height
        visible: field.text === "" && field.preeditText === ""
        text: field.name
        font: field.font
        color: Theme.legible(Theme.secondaryGray, Theme.background)
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    IconButton {
        id: clearButton

        objectName: "clearSearch"
        anchors.right: parent.right
        visible: field.text !== ""
        text: qsTrId("searchClear")
        iconText: Icons.close
        tintColor: Theme.label
        onClicked: {
            field.clear();
            field.forceActiveFocus(Qt.OtherFocusReason);
        }
    }
}
