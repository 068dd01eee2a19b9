import QtQuick
import Tavi

// A field that the keypad types into. It shows a caret of its own, as no system keyboard ever stands behind it.
DTTextFieldItem {
    id: field

    property string label
    property bool isInviting: false

    // Where its menu is wanted: by a long or a right press, or by key.
    signal menuRequested(point place)
    property real labelWidth: width // Over the field it may be wider than that.
    readonly property bool isLabelOut: style.isLabelFloating && (activeFocus || text !== "" || wideLabel.width > width - 24)

    View.kind: View.TextField

    implicitWidth: 160
    implicitHeight: 56
    activeFocusOnTab: true

    // A ring outside its border: here typing may begin.
    Rectangle {
        anchors.fill: parent
        anchors.margins: -4
        visible: field.isInviting
        radius: 12
        color: "transparent"
        border.width: 4
        border.color: Theme.strongYellow
    }

    Rectangle {
        anchors.fill: parent
        radius: 8
        color: field.View.backgroundColor
        border.width: !field.style.isBorderShown ? 0 : field.activeFocus ? 4 : 2
        border.color: field.borderColor
    }

    Text {
        x: field.isLabelOut ? 2 : 12
        y: field.isLabelOut ? Math.min(field.style.labelOffset, 1 - height) : (field.height - height) / 2
        width: (field.isLabelOut ? field.labelWidth : field.width) - 2 * x
        text: field.label
        font.family: field.isLabelOut ? field.style.labelFont.family : Theme.book(16).family
        font.pixelSize: field.isLabelOut ? Math.max(12, field.style.labelFont.pixelSize) : 16
        color: field.isLabelOut ? field.style.labelColor : Theme.label
        opacity: field.isLabelOut ? 1 : 0.65
        elide: Text.ElideRight
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 12
        Accessible.ignored: true
    }

    TextMetrics {
        id: wideLabel

        font: Theme.book(16)
        text: field.label
    }

    // The border is of the field, too.
    TapHandler {
        onTapped: field.forceActiveFocus()
    }

    TextInput {
        id: input

        anchors.fill: parent
        anchors.margins: 4
        leftPadding: 8
        rightPadding: 8
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

        // A text wider than the field goes on under a faded edge.
        property bool isCutLeft: false
        property bool isCutRight: false

        // Places in the text are told without the padding.
        function findEdges() {
            isCutLeft = positionToRectangle(0).x < -1;
            isCutRight = positionToRectangle(text.length).x > width - leftPadding - rightPadding + 1;
        }

        function findEdgesLater() {
            Qt.callLater(findEdges); // qmllint disable
        }

        function askForMenu() {
            field.menuRequested(Qt.point(cursorRectangle.x, height));
        }

        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier);
            if (event.accepted)
                askForMenu();
        }

        TapHandler {
            acceptedDevices: PointerDevice.TouchScreen
            onLongPressed: {
                if (input.selectedText === "")
                    input.selectAll();
                field.menuRequested(point.position);
            }
        }
        TapHandler {
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            acceptedButtons: Qt.RightButton
            onTapped: field.menuRequested(point.position)
        }

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
        onCursorRectangleChanged: findEdgesLater() // It tells before it scrolls.
        onWidthChanged: findEdgesLater()
        onCursorPositionChanged: report()
        onSelectionStartChanged: report()
        onSelectionEndChanged: report()

        Rectangle {
            id: caret

            readonly property rect place: input.cursorRectangle

            objectName: "caret"
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
                blinking.beatsLeft = 20;
                if (visible && blinking.interval > 0)
                    blinking.restart();
                else
                    blinking.stop();
            }
        }

        // A timer and no animation, which would draw sixty times a second to change something twice. After so many
        // beats, ten seconds as most desktops have it, the caret stands still and the processor can sleep.
        Timer {
            id: blinking

            property int beatsLeft

            interval: Application.styleHints.cursorFlashTime / 2
            repeat: true
            onTriggered: {
                caret.opacity = 1 - caret.opacity;
                if (--beatsLeft === 0)
                    stop();
            }
        }
    }

    component FadedEdge: Rectangle {
        id: edge

        property bool isLeft
        readonly property color ground: field.View.backgroundColor
        readonly property color faded: Qt.rgba(ground.r, ground.g, ground.b, 0)

        x: isLeft ? input.x : input.x + input.width - width
        y: input.y
        width: 24
        height: input.height
        radius: 4
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop {
                position: 0
                color: edge.isLeft ? edge.ground : edge.faded
            }
            GradientStop {
                position: 1
                color: edge.isLeft ? edge.faded : edge.ground
            }
        }
    }

    FadedEdge {
        objectName: "leftEdge"
        isLeft: true
        visible: input.isCutLeft
    }
    FadedEdge {
        objectName: "rightEdge"
        isLeft: false
        visible: input.isCutRight
    }

    onTextChanged: input.follow()
    onSelectionChanged: input.follow()
}
