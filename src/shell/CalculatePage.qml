import QtQuick
import Tavi

// The fields as the formula itself, over the keypad; in a wide window they stand side by side. The keypad is
// always seen whole; what stands by it scrolls where the window is too small.
FocusScope {
    id: page

    required property CalculateViewController controller

    readonly property int margin: 16
    readonly property int columnWidth: 480
    readonly property bool isWide: width > height || width >= Theme.tabletWidth
    readonly property real visibleHeight: height - controller.bottomBannerInset

    View.kind: View.Plain

    Component.onCompleted: {
        controller.segmentedControl = modeSwitch;
        controller.modeAView = powerFields;
        controller.modeBView = rootFields;
        controller.aTextField = [exponentField, indexField];
        controller.xTextField = [baseField, radicandField];
    }
    Keys.onReturnPressed: controller.tappedCalculateButton()
    Keys.onEnterPressed: controller.tappedCalculateButton()

    component KeypadField: DTTextField {
        Keys.onPressed: event => event.accepted = page.controller.pressedHardwareKey(event.key, event.modifiers, event.text)
        onActiveFocusChanged: if (activeFocus)
            task.show(this)
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.page
    }

    Flickable {
        id: task

        readonly property real columnX: (width - column) / 2
        readonly property real column: Math.min(width - 2 * page.margin, page.columnWidth)
        readonly property real smallestHeight: fillInLabel.height + modeSwitch.height + fields.height + 72

        property Item current

        // Where not all of it can be seen, the fields come first, and of them the one that is typed into.
        function showFields() {
            contentY = contentHeight - height;
            if (current)
                show(current);
        }

        function show(field) {
            current = field;
            const top = field.mapToItem(contentItem, 0, 0).y;
            contentY = Math.max(0, Math.min(Math.max(contentY, top + field.height + page.margin - height), top - page.margin));
        }

        width: page.isWide ? keypad.x : page.width
        height: page.isWide ? page.visibleHeight : keypad.y - page.margin
        contentWidth: width
        contentHeight: Math.max(height, smallestHeight)
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        clip: interactive
        onContentHeightChanged: showFields()
        onHeightChanged: showFields()

        Text {
            id: fillInLabel

            View.kind: View.Label

            x: task.columnX
            y: page.isWide ? Math.max(0, Math.min(keypad.y, task.height - task.smallestHeight) - 8) : 8
            width: task.column - manualButton.width
            height: Theme.touchTarget
            text: page.controller.fillInText
            font: Theme.book(16)
            color: Theme.label
            verticalAlignment: Text.AlignVCenter
            wrapMode: Text.WordWrap
        }

        IconButton {
            id: manualButton

            objectName: "manualButton"
            x: task.columnX + task.column - width
            y: fillInLabel.y
            text: qsTrId("manualButton")
            iconText: Icons.manual
            onClicked: page.controller.tappedManualButton()
        }

        SegmentedControl {
            id: modeSwitch

            objectName: "modeSwitch"
            x: task.columnX
            y: fillInLabel.y + fillInLabel.height + 8
            width: task.column
            segments: [{
                    "name": qsTrId("Power"),
                    "picture": powerPicture
                }, {
                    "name": qsTrId("Root"),
                    "picture": rootPicture
                }]
            onValueChanged: index => page.controller.segmentedControlValueChanged(index)
        }

        // The two formulas lie on top of each other, in the middle of what is left.
        Item {
            id: fields

            readonly property real upperEdge: modeSwitch.y + modeSwitch.height + 32
            readonly property real lowerEdge: page.isWide ? keypad.y + keypad.height : task.height

            x: task.columnX
            y: Math.max(upperEdge, (upperEdge + lowerEdge - height) / 2)
            width: task.column
            height: 112

            Item {
                id: powerFields

                View.kind: View.Plain

                objectName: "modeAView"
                anchors.fill: parent

                KeypadField {
                    id: baseField

                    objectName: "baseField"
                    y: 40
                    width: parent.width - exponentField.width - 8
                    height: 64
                    label: qsTrId("Base")
                }
                KeypadField {
                    id: exponentField

                    objectName: "exponentField"
                    x: parent.width - width
                    width: Math.min(160, parent.width * 0.36)
                    height: 52
                    label: qsTrId("Exponent")
                }
            }

            Item {
                id: rootFields

                View.kind: View.Plain

                objectName: "modeBView"
                anchors.fill: parent
                visible: false

                Radical {
                    x: indexField.width * 0.6
                    y: 16
                    width: parent.width - x
                    height: parent.height - y
                    hookWidth: indexField.width - x + 32
                    hookHeight: 40
                    lineWidth: 2
                    color: Theme.label
                }
                KeypadField {
                    id: indexField

                    objectName: "indexField"
                    width: Math.min(120, parent.width * 0.28)
                    height: 52
                    label: qsTrId("Root index")
                }
                KeypadField {
                    id: radicandField

                    objectName: "radicandField"
                    x: indexField.width + 40
                    y: 40
                    width: parent.width - x
                    height: 64
                    label: qsTrId("Radicand")
                }
            }
        }
    }

    Keypad {
        id: keypad

        // Keys are at least 56 high; only a window too low for that makes do with the size of a touch target.
        readonly property real room: (page.isWide ? page.visibleHeight : page.visibleHeight - task.smallestHeight) - 2 * page.margin - (rows - 1) * gap
        readonly property real roomBelow: page.visibleHeight - height

        controller: page.controller
        x: page.isWide ? page.width - width - page.margin : (page.width - width) / 2
        y: page.isWide ? roomBelow / 2 : roomBelow - Math.min(page.margin, roomBelow / 2)
        width: Math.min(page.columnWidth, page.isWide ? (page.width - 3 * page.margin) / 2 : page.width - 2 * page.margin)
        height: implicitHeight
        keyHeight: Math.max(Theme.touchTarget, Math.min(page.isWide ? 72 : 64, room / rows))
    }

    Component {
        id: powerPicture

        Item {
            Text {
                id: powerBase

                anchors.centerIn: parent
                anchors.horizontalCenterOffset: -5
                text: "x"
                font: Theme.medium(26)
                color: parent.parent.color
            }
            Text {
                anchors.left: powerBase.right
                anchors.bottom: powerBase.verticalCenter
                anchors.leftMargin: 1
                text: "n"
                font: Theme.medium(16)
                color: powerBase.color
            }
        }
    }

    Component {
        id: rootPicture

        Item {
            Radical {
                id: sign

                anchors.centerIn: parent
                width: 36
                height: 30
                hookWidth: 14
                hookHeight: 12
                lineWidth: 1.5
                color: parent.parent.color
            }
            Text {
                anchors.right: sign.left
                anchors.rightMargin: -7
                y: sign.y - 4
                text: "n"
                font: Theme.medium(14)
                color: sign.color
            }
            Text {
                anchors.right: sign.right
                anchors.rightMargin: 3
                anchors.baseline: sign.bottom
                anchors.baselineOffset: -3
                text: "x"
                font: Theme.medium(24)
                color: sign.color
            }
        }
    }
}
