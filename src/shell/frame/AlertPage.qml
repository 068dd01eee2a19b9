import QtQuick
import Tavi

// A title, a message and a button per action, one below the other.
Column {
    id: page

    required property AlertController controller

    padding: 16
    spacing: 12

    Heading {
        width: page.width - 32
        visible: text
        text: page.controller.title
        horizontalAlignment: Text.AlignHCenter
    }
    Label {
        width: page.width - 32
        visible: text
        text: page.controller.message
        font: Theme.book(15)
        // Paragraphs and lists are not centred: their lines would begin at any place.
        horizontalAlignment: text.includes("\n") ? Text.AlignLeft : Text.AlignHCenter
    }
    Repeater {
        model: page.controller.actionTitles

        IconButton {
            required property int index
            required property string modelData

            objectName: "alertAction" + index
            width: page.width - 32
            text: modelData
            font: Theme.heavy(16)
            tintColor: Theme.legible(page.controller.isDestructive(index) ? Theme.red : Theme.accentText, groundColor)
            groundColor: Theme.groupedBackground
            focus: index === page.controller.firstFocus
            onClicked: page.controller.choose(index)
        }
    }
}
