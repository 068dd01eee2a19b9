import QtQuick
import Tavi

// A round button over a page; an outlined one stands back.
ActionButton {
    id: control

    property bool outlined: false

    View.kind: View.FloatingButton

    implicitWidth: 56
    implicitHeight: 56
    leftPadding: 0
    rightPadding: 0
    radius: width / 2
    groundColor: outlined ? Theme.background : View.backgroundColor
    iconColor: outlined ? Theme.label : View.tintColor

    Rectangle {
        anchors.fill: parent
        visible: control.outlined
        radius: control.radius
        color: "transparent"
        border.width: 1
        border.color: Theme.secondaryGray
    }
}
