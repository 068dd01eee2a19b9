import QtQuick
import Tavi

// Power or root, each as a picture of its formula.
SegmentedControl {
    id: control

    name: qsTrId("Kind of task")
    segments: [{
            "name": qsTrId("Power"),
            "picture": powerPicture
        }, {
            "name": qsTrId("Root"),
            "picture": rootPicture
        }]

    Component {
        id: powerPicture

        Item {
            id: power

            readonly property var segment: parent

            Text {
                id: powerBase

                anchors.centerIn: parent
                anchors.horizontalCenterOffset: -5
                text: "x"
                font: Theme.medium(22)
                color: power.segment.color
            }
            Text {
                anchors.left: powerBase.right
                anchors.bottom: powerBase.verticalCenter
                anchors.leftMargin: 1
                text: "n"
                font: Theme.medium(14)
                color: powerBase.color
            }
        }
    }

    Component {
        id: rootPicture

        Item {
            id: root

            readonly property var segment: parent

            Radical {
                id: sign

                anchors.centerIn: parent
                width: 36
                height: 30
                hookWidth: 14
                hookHeight: 12
                lineWidth: 1.5
                color: root.segment.color
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
                font: Theme.medium(22)
                color: sign.color
            }
        }
    }
}
