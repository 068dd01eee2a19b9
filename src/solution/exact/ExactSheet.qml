import QtQuick
import Tavi

// The exact value beside a working: value, decimal, why the working comes to something else, and copies.
Column {
    id: page

    required property ExactSheetController controller

    topPadding: 16
    bottomPadding: 8
    spacing: 8

    Heading {
        width: parent.width
        leftPadding: 24
        rightPadding: 24
        text: page.controller.title
    }

    FormulaLine {
        objectName: "exactValue"
        latex: page.controller.value
    }
    FormulaLine {
        objectName: "exactDecimal"
        visible: latex
        latex: page.controller.decimal
    }
    Row {
        x: 16
        visible: page.controller.hasMoreDigits || page.controller.hasFewerDigits

        // Where one leads no further the keyboard goes on with the other.
        IconButton {
            id: fewerDigits

            objectName: "fewerDigits"
            enabled: page.controller.hasFewerDigits
            opacity: enabled ? 1 : 0.4
            text: qsTrId("exactFewerDigits")
            tintColor: Theme.accentText
            groundColor: Theme.groupedBackground
            onClicked: {
                page.controller.showFewerDigits();
                if (!enabled)
                    moreDigits.forceActiveFocus(Qt.TabFocusReason);
            }
        }
        IconButton {
            id: moreDigits

            objectName: "moreDigits"
            enabled: page.controller.hasMoreDigits
            opacity: enabled ? 1 : 0.4
            text: qsTrId("exactMoreDigits")
            tintColor: Theme.accentText
            groundColor: Theme.groupedBackground
            onClicked: {
                page.controller.showMoreDigits();
                if (!enabled)
                    fewerDigits.forceActiveFocus(Qt.TabFocusReason);
            }
        }
    }

    Repeater {
        model: page.controller.sentences

        Flow {
            id: sentence

            required property var modelData

            // How far it reaches above and below the line that all of it stands on.
            readonly property real ascent: Math.max(0, ...Array.from(children, piece => piece.ascent ?? 0))
            readonly property real descent: Math.max(0, ...Array.from(children, piece => piece.descent ?? 0))

            objectName: "sentence"
            x: 24
            width: page.width - 48
            Accessible.role: Accessible.StaticText
            Accessible.name: modelData.spoken

            Repeater {
                model: sentence.modelData.pieces

                // What stands in one line.
                Row {
                    id: piece

                    required property var modelData
                    readonly property real ascent: Math.max(0, ...Array.from(children, part => part.ascent ?? 0))
                    readonly property real descent: Math.max(0, ...Array.from(children, part => part.descent ?? 0))

                    Repeater {
                        model: piece.modelData

                        Item {
                            id: part

                            required property var modelData
                            readonly property Item content: modelData.word ? word : formula
                            readonly property real ascent: content.baselineOffset
                            readonly property real descent: content.implicitHeight - ascent

                            width: Math.min(content.implicitWidth, sentence.width)
                            height: Math.max(24, sentence.ascent + sentence.descent)
                            clip: content.implicitWidth > width

                            Text {
                                id: word

                                y: sentence.ascent - baselineOffset
                                text: part.modelData.word ?? ""
                                textFormat: Text.PlainText
                                font: Theme.book(16)
                                color: Theme.label
                                Accessible.ignored: true
                            }
                            MathLabel {
                                id: formula

                                y: sentence.ascent - baselineOffset
                                width: implicitWidth
                                height: implicitHeight
                                latex: part.modelData.formula ?? ""
                                fontSize: 18
                                textColor: Theme.label
                                backgroundColor: Theme.groupedBackground
                                Accessible.ignored: true
                            }
                        }
                    }
                }
            }
        }
    }

    SheetRow {
        objectName: "copyExactLatex"
        focus: true
        text: qsTrId("copyAsLatex")
        iconText: Icons.copy
        onClicked: page.controller.copyLatex()
    }
    SheetRow {
        objectName: "copyExactText"
        text: qsTrId("copyAsText")
        iconText: Icons.copy
        onClicked: page.controller.copyText()
    }
    SheetRow {
        objectName: "closeExactSheet"
        text: qsTrId("Cancel")
        iconText: Icons.close
        onClicked: page.controller.cancel()
    }

    // A formula that scrolls sideways where it is too wide.
    component FormulaLine: Flickable {
        id: line

        property alias latex: formulaLabel.latex

        width: page.width
        height: formulaLabel.implicitHeight + 8
        contentWidth: formulaLabel.implicitWidth + 48
        contentHeight: height
        flickableDirection: Flickable.HorizontalFlick
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentWidth > width
        clip: interactive
        activeFocusOnTab: interactive
        Accessible.role: Accessible.StaticText
        Accessible.name: formulaLabel.spokenText
        Keys.onLeftPressed: contentX = Math.max(0, contentX - 48)
        Keys.onRightPressed: contentX = Math.max(0, Math.min(contentWidth - width, contentX + 48))

        MathLabel {
            id: formulaLabel

            x: 24
            anchors.verticalCenter: parent.verticalCenter
            width: implicitWidth
            height: implicitHeight
            fontSize: 22
            textColor: Theme.label
            backgroundColor: Theme.groupedBackground
            Accessible.ignored: true
        }
        FocusRing {
            control: line
            ground: Theme.groupedBackground
        }
    }
}
