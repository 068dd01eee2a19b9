import QtQuick
import Tavi

// The fields as the formula itself, over the keypad; in a wide window they stand side by side. What stands by the
// keypad comes down to its least height first, then the keys do; only then the page scrolls.
FocusScope {
    id: page

    required property CalculateViewController controller

    readonly property bool isWide: width >= Theme.tabletWidth || (width > height && width >= leastWideWidth)
    readonly property int leastWideWidth: 540

    readonly property int margin: 16
    readonly property int columnWidth: 480
    readonly property int leastColumnHeight: 160
    readonly property int mostColumnHeight: 232

    // All of it, and the part of that which the column by the keypad has.
    readonly property real room: Math.max(height - controller.bottomBannerInset, keypad.leastHeight + 8 + (isWide ? 0 : leastColumnHeight))
    readonly property real columnRoom: isWide ? keypad.height : keypad.y

    // With room enough the preview stands under the fields, else beside the switch.
    readonly property int previewRoom: 84
    readonly property bool isPreviewBelow: columnRoom >= leastColumnHeight + previewRoom

    // The first of the spare room makes the switch easy to touch, the rest goes from 0, where all of the column is as
    // low as it can be, to 1.
    readonly property real spare: Math.max(0, columnRoom - leastColumnHeight - (isPreviewBelow ? previewRoom : 0))
    readonly property int mostGrowth: 8
    readonly property real switchHeight: Theme.touchTarget - mostGrowth + Math.min(mostGrowth, spare)
    readonly property real ease: Math.max(0, Math.min(1, (spare - mostGrowth) / (mostColumnHeight - leastColumnHeight - mostGrowth)))

    readonly property real columnGap: Math.max(margin, Math.min(64, width - 2 * margin - 2 * columnWidth))
    readonly property real column: Math.floor(Math.min(columnWidth, isWide ? (width - 2 * margin - columnGap) / 2 : width - 2 * margin))
    readonly property real columnX: Math.floor((width - column - (isWide ? columnGap + column : 0)) / 2)

    // What the column leaves free above its lower edge.
    readonly property real lowerEdge: isWide ? keypad.y + keypad.height : keypad.y - between(6, 16)
    readonly property real free: lowerEdge - fields.upperEdge - fields.height

    function between(least, most) {
        return Math.round(least + ease * (most - least));
    }

    View.kind: View.Plain

    Component.onCompleted: {
        controller.segmentedControl = modeSwitch;
        controller.modeAView = fields.powerFields;
        controller.modeBView = fields.rootFields;
        controller.aTextField = [fields.exponentField, fields.indexField]; // qmllint disable property
        controller.xTextField = [fields.baseField, fields.radicandField]; // qmllint disable property
    }
    Keys.onPressed: event => event.accepted = controller.pressedHardwareKey(event.key, event.modifiers, event.text)

    Rectangle {
        anchors.fill: parent
        color: Theme.page
    }

    Flickable {
        id: flickable

        objectName: "flickable"
        readonly property real reach: Math.max(0, contentHeight - height)

        function show(item) {
            const top = item.mapToItem(contentItem, 0, 0).y;
            contentY = Math.max(0, Math.min(reach, top - page.margin, Math.max(contentY, top + item.height + page.margin - height)));
        }

        anchors.fill: parent
        anchors.bottomMargin: page.controller.bottomBannerInset
        contentWidth: width
        contentHeight: page.room
        boundsBehavior: Flickable.StopAtBounds
        interactive: reach > 0
        onReachChanged: contentY = Math.min(contentY, reach)

        Text {
            id: fillInLabel

            objectName: "fillInLabel"
            View.kind: View.Label

            x: page.columnX
            y: page.isWide ? keypad.y : page.between(2, 8)
            width: page.column
            height: page.between(20, 24)
            text: page.controller.fillInText
            font: Theme.book(16)
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 12
            color: Theme.label
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
        }

        ModeSwitch {
            id: modeSwitch

            objectName: "modeSwitch"
            x: page.columnX
            y: fillInLabel.y + fillInLabel.height + page.between(2, 8)
            width: Math.floor((page.column - manualButton.width) * (page.isPreviewBelow ? 1 : 0.45))
            height: page.switchHeight
            onValueChanged: index => page.controller.segmentedControlValueChanged(index)
        }

        IconButton {
            id: manualButton

            objectName: "manualButton"
            x: page.columnX + page.column - width + 12 // its icon ends where the column does
            y: modeSwitch.y
            height: modeSwitch.height
            text: qsTrId("manualButton")
            iconText: Icons.manual
            onClicked: page.controller.tappedManualButton()
        }

        TaskFields {
            id: fields

            readonly property real upperEdge: modeSwitch.y + modeSwitch.height + page.between(14, 24)

            controller: page.controller
            x: page.columnX
            y: upperEdge + Math.floor(page.isPreviewBelow ? Math.max(0, page.free - 128) / 2 : page.free / 2)
            width: page.column
            height: page.between(76, 104)
            onFocused: field => flickable.show(field)
        }

        TaskPreview {
            readonly property real besideX: modeSwitch.x + modeSwitch.width + 12
            readonly property real belowY: fields.y + fields.height + 10

            objectName: "preview"
            controller: page.controller
            faultyField: fields.faultyField
            isCompact: !page.isPreviewBelow
            x: isCompact ? besideX : page.columnX
            y: isCompact ? modeSwitch.y : belowY
            width: isCompact ? manualButton.x - besideX : page.column
            height: isCompact ? modeSwitch.height : page.lowerEdge - belowY
        }

        Keypad {
            id: keypad

            readonly property int leastKeyHeight: 40
            readonly property int usualKeyHeight: 56
            readonly property real leastHeight: rows * (leastKeyHeight + gap) - gap
            readonly property real edge: Math.round(Math.max(4, Math.min(page.margin, (page.room - (page.isWide ? 200 : 360)) / 10)))

            // How high its keys are where the rest of the page takes so much.
            function keyHeightBeside(rest) {
                return Math.floor((page.room - rest - rows * gap + gap) / rows);
            }

            controller: page.controller
            x: page.isWide ? page.columnX + page.column + page.columnGap : page.columnX
            y: page.isWide ? Math.floor((page.room - height) / 2) : page.room - edge - height
            width: page.column
            height: implicitHeight
            keyHeight: page.isWide ? Math.max(leastKeyHeight, Math.min(72, keyHeightBeside(2 * edge))) : Math.max(leastKeyHeight, Math.min(usualKeyHeight, keyHeightBeside(edge + page.leastColumnHeight)), Math.min(64, keyHeightBeside(edge + page.mostColumnHeight + 96)))
        }
    }
}
