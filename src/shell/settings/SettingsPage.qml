import QtQuick
import Tavi

// What the user can choose, group by group.
Item {
    id: page

    required property SettingsViewController controller

    PageHead {
        id: head

        title: page.controller.label
        onClosed: page.controller.cancel()
    }

    Flickable {
        id: scroll

        readonly property Item current: Window.activeFocusItem

        objectName: "settingsScroll"
        anchors.top: head.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        contentHeight: groups.height + 32
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        // What the keyboard goes to comes into sight.
        onCurrentChanged: {
            let ancestor = current;
            while (ancestor && ancestor !== groups)
                ancestor = ancestor.parent;
            if (!ancestor)
                return;
            const top = current.mapToItem(groups, 0, 0).y;
            contentY = Math.max(0, Math.min(contentHeight - height, Math.max(Math.min(contentY, top), top + current.height + 32 - height)));
        }

        Column {
            id: groups

            x: (parent.width - width) / 2
            y: 16
            width: Math.min(parent.width - 32, 560)
            spacing: 24

            SettingsGroup {
                title: qsTrId("appearance")

                SegmentedControl {
                    objectName: "appearanceChoice"
                    width: parent.width
                    radius: 12
                    name: qsTrId("appearance")
                    selectedSegmentIndex: page.controller.appearance
                    segments: [{
                            "name": qsTrId("asSystem")
                        }, {
                            "name": qsTrId("light")
                        }, {
                            "name": qsTrId("dark")
                        }]
                    onValueChanged: index => page.controller.chooseAppearance(index)
                }
            }

            SettingsGroup {
                title: qsTrId("formulas")

                SettingsStepper {
                    objectName: "formulaSize"
                    text: qsTrId("formulaSize")
                    value: Theme.formulaPercent
                    least: page.controller.leastFormulaPercent
                    most: page.controller.mostFormulaPercent
                    smallerName: qsTrId("formulaSmaller")
                    largerName: qsTrId("formulaLarger")
                    onStepped: way => page.controller.scaleFormulas(value + 10 * way)
                }
            }

            SettingsGroup {
                title: qsTrId("language")

                SettingsRow {
                    id: languageRow

                    property bool isOpen: false

                    objectName: "languageRow"
                    text: page.controller.languageName
                    mark: isOpen ? foldIcon : unfoldIcon
                    Accessible.description: qsTrId("language")
                    Accessible.checkable: true
                    Accessible.checked: isOpen
                    onClicked: isOpen = !isOpen
                }
                Repeater {
                    model: languageRow.isOpen ? page.controller.languages : []

                    SettingsRow {
                        required property var modelData
                        readonly property bool isChosen: modelData.code === page.controller.language

                        objectName: "language " + modelData.code
                        text: modelData.name
                        mark: isChosen ? checkIcon : null
                        accessibleRole: Accessible.RadioButton
                        Accessible.checkable: true
                        Accessible.checked: isChosen
                        onClicked: page.controller.chooseLanguage(modelData.code)
                    }
                }
                Label {
                    x: 16
                    width: parent.width - 32
                    bottomPadding: 12
                    text: qsTrId("fromNextStart")
                    font: Theme.book(14)
                    color: Theme.legible(Theme.secondaryGray, Theme.background)
                }
            }

            SettingsGroup {
                title: qsTrId("History")

                SettingsRow {
                    objectName: "historyExport"
                    text: qsTrId("historyExport")
                    onClicked: files.exportHistory()
                }
                SettingsRow {
                    objectName: "historyImport"
                    text: qsTrId("historyImport")
                    onClicked: files.importHistory()
                }
            }

            SettingsGroup {
                title: qsTrId("measurement")

                SettingsRow {
                    objectName: "measurementSwitch"
                    visible: page.controller.canMeasure
                    text: qsTrId("measurementAccept")
                    mark: page.controller.isMeasuring ? switchOn : switchOff
                    accessibleRole: Accessible.CheckBox
                    Accessible.checkable: true
                    Accessible.checked: page.controller.isMeasuring
                    onClicked: page.controller.setMeasuring(!page.controller.isMeasuring)
                }
                SettingsRow {
                    id: sentRow

                    property bool isOpen: false

                    objectName: "measurementSent"
                    visible: page.controller.canMeasure
                    text: qsTrId("measurementWhat")
                    mark: isOpen ? foldIcon : unfoldIcon
                    Accessible.checkable: true
                    Accessible.checked: isOpen
                    onClicked: isOpen = !isOpen
                }
                Label {
                    objectName: "measurementText"
                    x: 16
                    width: parent.width - 32
                    topPadding: page.controller.canMeasure ? 4 : 12
                    bottomPadding: 12
                    visible: sentRow.isOpen || !page.controller.canMeasure
                    text: page.controller.canMeasure ? page.controller.measurementText : qsTrId("measurementNone")
                    font: Theme.book(14)
                }
            }
        }
    }
    HistoryFiles {
        id: files

        transfer: page.controller.transfer
    }
    ScrollThumb {
        flickable: scroll
        orientation: Qt.Vertical
        anchors.right: parent.right
        anchors.rightMargin: 2
    }

    Component {
        id: foldIcon

        Icon {
            text: Icons.fold
        }
    }
    Component {
        id: unfoldIcon

        Icon {
            text: Icons.unfold
        }
    }
    Component {
        id: checkIcon

        Icon {
            text: Icons.check
        }
    }
    Component {
        id: switchOn

        SettingsSwitch {
            isOn: true
        }
    }
    Component {
        id: switchOff

        SettingsSwitch {
            isOn: false
        }
    }
}
