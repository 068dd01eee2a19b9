import QtQuick
import Tavi

// A field that the keypad types into. It shows a caret of its own, as no system keyboard ever stands behind it.
DTTextFieldItem {
    id: field

    property string label
    readonly property bool isLabelOut: style.isLabelFloating && (activeFocus || text !== "")

    View.kind: View.TextField

    implicitWidth: 160
    implicitHeight: 56
    activeFocusOnTab: true

    Rectangle {
        anchors.fill: parent
        radius: 8
        color: field.View.backgroundColor
        border.width: !field.style.isBorderShown ? 0 : field.activeFocus ? 4 : 2
        border.color: field.borderColor
    }

    Text {
        x: field.isLabelOut ? 2 : input.x
        y: field.isLabelOut ? Math.min(field.style.labelOffset, 1 - height) : (field.height - height) / 2
        width: parent.width - 2 * x
        text: field.label
        font.family: field.isLabelOut ? field.style.labelFont.family : Theme.book(16).family
        font.pixelSize: field.isLabelOut ? Math.max(12, field.style.labelFont.pixelSize) : 16
        color: field.isLabelOut ? field.style.labelColor : Theme.label
        opacity: field.isLabelOut ? 1 : 0.65
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    TextInput {
        id: input

        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        focus: true
        readOnly: true
        clip: true
        selectByMouse: true
        font: Theme.medium(22)
        color: Theme.label
        selectionColor: Theme.strongYellow
        selectedTextColor: Theme.darkTitle
        verticalAlignment: TextInput.AlignVCenter
        cursorDelegate: Item {
        }
        Accessible.role: Accessible.EditableText
        Accessible.name: field.label
        Accessible.description: field.faultWords === "" ? "" : qsTrId("Invalid entry") + ": " + field.faultWords
        Accessible.readOnly: !field.enabled
        Keys.forwardTo: [field] // Before this input takes a Backspace without deleting anything.

        // Field and input tell each other their changes, one at a time.
        property bool isSynchronizing: false

        function follow() {
            if (isSynchronizing)
                return;
            isSynchronizing = true;
            text = field.text;
            if (field.selectionStart === field.selectionEnd)
                cursorPosition = field.selectionStart;
            else
                select(field.selectionStart, field.selectionEnd);
            isSynchronizing = false;
        }

        function report() {
            if (isSynchronizing || !activeFocus)
                return;
            isSynchronizing = true;
            if (selectedText === "")
                field.select(cursorPosition, cursorPosition);
            else
                field.select(selectionStart, selectionEnd);
            isSynchronizing = false;
        }
        onCursorPositionChanged: report()
        onSelectionStartChanged: report()
        onSelectionEndChanged: report()

        Rectangle {
            id: caret

            readonly property rect place: input.cursorRectangle

            x: place.x
            y: place.y
            width: 2
            height: place.height
            visible: input.activeFocus
            color: field.style.caretColor
            onPlaceChanged: show()
            onVisibleChanged: show()

            function show() {
                opacity = 1;
                if (visible && blinking.interval > 0)
                    blinking.restart();
                else
                    blinking.stop();
            }
        }

        // A timer and no animation, which would draw sixty times a second to change something twice.
        Timer {
            id: blinking

            interval: Application.styleHints.cursorFlashTime / 2
            repeat: true
            onTriggered: caret.opacity = 1 - caret.opacity
        }
    }

    onTextChanged: input.follow()
    onSelectionChanged: input.follow()
}
