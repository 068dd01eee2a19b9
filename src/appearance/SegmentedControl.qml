import QtQuick
import Tavi

// Segments of equal width in a rounded frame, of which one is chosen. Each shows a picture or, without one, its name.
Rectangle {
    id: control

    property string name
    property int selectedSegmentIndex: 0
    property var segments: [] // of { name } or { name, picture }

    signal valueChanged(int index)

    View.kind: View.SegmentedControl

    implicitWidth: 240
    implicitHeight: Theme.touchTarget
    radius: 8
    color: Theme.background
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    Repeater {
        model: control.segments

        Pressable {
            id: segment

            required property int index
            required property var modelData
            readonly property bool isChosen: index === control.selectedSegmentIndex

            objectName: "segment" + index
            x: index * width
            width: control.width / control.segments.length
            height: control.height
            focusPolicy: Qt.TabFocus
            text: modelData.name
            accessibleRole: Accessible.RadioButton
            isCheckable: true
            isChecked: isChosen
            onClicked: if (!isChosen)
                control.valueChanged(index)
            background: Rectangle {
                radius: control.radius
                color: segment.isChosen ? Theme.strongYellow : segment.down ? Theme.groupedBackground : "transparent"
            }
            contentItem: Loader {
                property string name: segment.text
                property color color: segment.isChosen ? Theme.darkTitle : Theme.label

                sourceComponent: segment.modelData.picture ?? segmentName
            }

            FocusRing {
                control: segment
                ground: segment.isChosen ? Theme.strongYellow : Theme.background
                radius: 8
            }
        }
    }

    Component {
        id: segmentName

        Text {
            readonly property var segment: parent

            text: segment.name
            font: Theme.medium(15)
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 10
            color: segment.color
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: parent.radius
        color: "transparent"
        border.width: 1
        border.color: Theme.secondaryGray
    }
}
