import QtQuick
import Tavi

// The question in the middle of the darkened page.
Item {
    id: page

    required property RatingViewController controller

    Rectangle {
        id: ratingBackgroundView

        anchors.fill: parent
        color: Qt.rgba(0, 0, 0, 0.5)
    }
    Rectangle {
        id: ratingView

        objectName: "ratingView"
        View.kind: View.Plain
        anchors.centerIn: parent
        width: Math.min(360, page.width - 32)
        height: content.height + 40
        radius: 14
        color: Theme.groupedBackground

        Column {
            id: content

            x: 20
            y: 20
            width: parent.width - 40
            spacing: 16

            Text {
                width: parent.width
                text: page.controller.question
                font: Theme.heavy(20)
                color: Theme.label
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            StarRating {
                objectName: "StarRatingView"
                View.tag: 103
                width: parent.width
                focus: true
                rating: page.controller.rating
                onGiven: rating => page.controller.rating = rating
            }
            Row {
                width: parent.width
                spacing: 12

                ActionButton {
                    objectName: "cancelRatingButton"
                    View.tag: 102
                    width: (parent.width - 12) / 2
                    radius: 2
                    text: qsTrId("Cancel")
                    font: Theme.medium(17)
                    onClicked: page.controller.tappedCancelRatingButton()
                }
                ActionButton {
                    objectName: "sendRatingButton"
                    View.tag: 104
                    width: (parent.width - 12) / 2
                    radius: 2
                    enabled: page.controller.rating > 0
                    text: qsTrId("Send")
                    font: Theme.medium(17)
                    onClicked: page.controller.tappedSendRatingButton()
                }
            }
        }
    }
}
