import QtQuick
import Tavi

// The fields of both modes, laid out as their formulas, one over the other; that of the mode is visible. They are
// made for heights from 76 to 104.
Item {
    id: fields

    required property CalculateViewController controller

    readonly property alias powerFields: powerFields
    readonly property alias rootFields: rootFields
    readonly property alias baseField: baseField
    readonly property alias exponentField: exponentField
    readonly property alias indexField: indexField
    readonly property alias radicandField: radicandField

    readonly property real ease: (height - 76) / 28
    readonly property int largeHeight: Math.round(48 + ease * 16)
    readonly property int smallHeight: Math.round(48 + ease * 4)
    readonly property int raise: height - largeHeight

    // Of those that are seen, the first one with something wrong.
    readonly property DTTextField faultyField: {
        for (const field of [baseField, exponentField, indexField, radicandField])
            if (field.parent.visible && field.faultWords !== "")
                return field;
        return null;
    }

    // Where typing may begin, while no field is chosen.
    readonly property DTTextField invitingField: controller.isTypingPossible ? null : powerFields.visible ? baseField : radicandField

    property FieldMenu menu: null

    signal focused(Item field)

    function openMenu(field, x) {
        if (!menu)
            menu = fieldMenu.createObject(fields);
        menu.popup(field, x, field.height + 4);
    }

    component KeypadField: DTTextField {
        id: keypadField

        isInviting: fields.invitingField === keypadField && text === ""
        Keys.onPressed: event => event.accepted = fields.controller.pressedHardwareKey(event.key, event.modifiers, event.text)
        onActiveFocusChanged: if (activeFocus)
            fields.focused(this)
        onMenuRequested: place => {
            forceActiveFocus();
            fields.openMenu(keypadField, place.x);
        }
    }
    component Formula: Item {
        View.kind: View.Plain

        anchors.fill: parent
        Accessible.role: Accessible.Grouping
        Accessible.name: fields.controller.fillInText
    }

    Component {
        id: fieldMenu

        FieldMenu {
            controller: fields.controller
        }
    }

    Formula {
        id: powerFields

        objectName: "modeAView"

        KeypadField {
            id: baseField

            objectName: "baseField"
            y: fields.raise
            width: parent.width - exponentField.width - 8
            height: fields.largeHeight
            label: qsTrId("Base")
        }
        KeypadField {
            id: exponentField

            objectName: "exponentField"
            x: parent.width - width
            width: Math.round(Math.min(160, parent.width * 0.36))
            height: fields.smallHeight
            label: qsTrId("Exponent")
        }
    }

    Formula {
        id: rootFields

        objectName: "modeBView"
        visible: false

        Radical {
            x: indexField.width * 0.6
            y: fields.raise - 24
            width: parent.width - x
            height: parent.height - y
            hookWidth: indexField.width - x + 32
            hookHeight: Math.min(40, parent.height - fields.smallHeight - 4)
            lineWidth: 2
            color: Theme.label
        }
        KeypadField {
            id: indexField

            objectName: "indexField"
            width: Math.round(Math.min(120, parent.width * 0.34))
            height: fields.smallHeight
            label: qsTrId("Root index")
            labelWidth: parent.width
        }
        KeypadField {
            id: radicandField

            objectName: "radicandField"
            x: indexField.width + 40
            y: fields.raise
            width: parent.width - x
            height: fields.largeHeight
            label: qsTrId("Radicand")
        }
    }
}
