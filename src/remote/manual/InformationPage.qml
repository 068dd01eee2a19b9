import QtQuick
import Tavi

// A drawing over its words.
Item {
    id: page

    required property InformationViewController controller

    PageHead {
        id: head

        title: page.controller.label
        onClosed: page.controller.cancel()
    }
    Picture {
        id: picture

        anchors.top: head.bottom
        anchors.margins: 16
        anchors.horizontalCenter: parent.horizontalCenter
        name: page.controller.infoKey
        width: Math.min(parent.width - 32, 440)
        height: Math.min(0.5 * page.height, 0.8 * width)
    }
    Text {
        anchors.top: picture.bottom
        anchors.topMargin: 16
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width - 32, 560)
        text: page.controller.text
        font: Theme.book(17)
        color: Theme.label
        wrapMode: Text.Wrap
    }
}
