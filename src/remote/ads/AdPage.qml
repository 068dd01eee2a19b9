import QtQuick
import Tavi

// One offer: its picture over the button that leads there, and a way out at the upper right.
Rectangle {
    id: page

    required property TaviAdsViewController controller
    readonly property bool isLow: width > 1.2 * height

    color: Theme.page

    Picture {
        objectName: "adImageView"
        name: page.controller.pictureName
        x: 16
        y: page.isLow ? 16 : closeButton.y + closeButton.height + 8
        width: page.isLow ? parent.width - discountButton.width - 64 : parent.width - 32
        height: (page.isLow ? parent.height - 16 : discountButton.y - 24) - y
    }
    ActionButton {
        id: closeButton

        objectName: "adCloseButton"
        anchors.right: parent.right
        anchors.rightMargin: 16
        y: 16
        width: 48
        leftPadding: 0
        rightPadding: 0
        radius: 24
        groundColor: Theme.background
        iconColor: page.controller.closeColor
        iconText: Icons.close
        text: qsTrId("Close")
        View.shadow: page.controller.buttonShadow
        onClicked: page.controller.tappedCloseButton()
    }
    ActionButton {
        id: discountButton

        objectName: "adDiscountButton"
        x: page.isLow ? parent.width - width - 24 : (parent.width - width) / 2
        y: page.isLow ? (parent.height - height) / 2 : parent.height - height - Math.min(48, 0.05 * parent.height)
        width: page.isLow ? Math.min(320, 0.42 * parent.width) : Math.min(parent.width - 32, 480)
        height: 56
        radius: 2
        visible: text
        focus: true
        text: page.controller.discountTitle
        font: Theme.heavy(18)
        groundColor: page.controller.discountColor
        View.titleColor: page.controller.discountTitleColor
        View.shadow: page.controller.buttonShadow
        onClicked: page.controller.tappedDiscountButton()
    }
}
