import QtQuick
import Tavi

// The keys of the calculate page, four in a row. No key takes the focus from
// the field when it is tapped.
Item {
    id: keypad

    required property CalculateViewController controller
    property real keyHeight: 56

    readonly property int columns: 4
    readonly property int gap: 8
    readonly property real keyWidth: (width - (columns - 1) * gap) / columns
    readonly property int rows: Math.ceil(keys.length / columns)

    // A key types its title; one without a title has an action, and the controller says which icon. Tags give
    // the colours.
    readonly property int deleteTag: 101
    readonly property int digitTag: 102
    readonly property int signTag: 103
    readonly property int calculateTag: 104
    readonly property var keys: [{
            "title": "x",
            "tag": signTag
        }, {
            "title": "y",
            "tag": signTag
        }, {
            "title": "z",
            "tag": signTag
        }, {
            "identifier": "Delete",
            "name": qsTrId("Delete"),
            "icon": "deleteIcon",
            "tag": deleteTag,
            "repeats": true,
            "action": () => controller.tappedDeleteButton()
        }, {
            "title": "7",
            "tag": digitTag
        }, {
            "title": "8",
            "tag": digitTag
        }, {
            "title": "9",
            "tag": digitTag
        }, {
            "title": "/",
            "tag": signTag,
            "name": qsTrId("Fraction bar")
        }, {
            "title": "4",
            "tag": digitTag
        }, {
            "title": "5",
            "tag": digitTag
        }, {
            "title": "6",
            "tag": digitTag
        }, {
            "title": "-",
            "tag": signTag,
            "name": qsTrId("Minus sign"),
            "glyph": "\u2212"
        }, {
            "title": "1",
            "tag": digitTag
        }, {
            "title": "2",
            "tag": digitTag
        }, {
            "title": "3",
            "tag": digitTag
        }, {
            "title": "π",
            "tag": signTag,
            "name": qsTrId("Pi")
        }, {
            "title": "0",
            "tag": digitTag
        }, {
            "title": ".",
            "tag": signTag,
            "name": qsTrId("Decimal point")
        }, {
            "identifier": "Calculate",
            "name": qsTrId("Calculate"),
            "icon": "calculateIcon",
            "tag": calculateTag,
            "span": 2,
            "action": () => controller.tappedCalculateButton()
        }]

    // A key that would do nothing is off.
    function isOn(key) {
        if (key.tag === deleteTag)
            return controller.isDeletePossible;
        if (key.title === "-")
            return controller.isMinusKeyEnabled;
        return key.tag === calculateTag || controller.isTypingPossible;
    }

    View.kind: View.Stack

    implicitHeight: rows * (keyHeight + gap) - gap

    Repeater {
        model: keypad.keys

        ActionButton {
            required property int index
            required property var modelData
            readonly property int span: modelData.span ?? 1

            View.tag: modelData.tag

            objectName: "key " + (modelData.title ?? modelData.identifier)
            x: index % keypad.columns * (keypad.keyWidth + keypad.gap)
            y: Math.floor(index / keypad.columns) * (keypad.keyHeight + keypad.gap)
            width: span * (keypad.keyWidth + keypad.gap) - keypad.gap
            height: keypad.keyHeight
            text: modelData.glyph ?? modelData.title ?? modelData.name
            iconText: Icons[keypad.controller[modelData.icon]] ?? ""
            enabled: keypad.isOn(modelData)
            focusPolicy: modelData.tag === keypad.calculateTag ? Qt.TabFocus : Qt.NoFocus
            autoRepeat: modelData.repeats ?? false
            Accessible.name: modelData.name ?? text
            onClicked: modelData.action ? modelData.action() : keypad.controller.tappedKeypadButton(modelData.title)
        }
    }
}
