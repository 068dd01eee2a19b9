import QtQuick

// Takes a player's place where no web view can be drawn: ready at once, unless the video's name says otherwise.
Rectangle {
    property bool isReady: false

    function play(page, address) {
        isReady = !page.includes("notReadyYet");
    }

    radius: 8
    gradient: Gradient {
        GradientStop {
            position: 0
            color: "#37474f"
        }
        GradientStop {
            position: 1
            color: "#102027"
        }
    }

    Text {
        anchors.centerIn: parent
        text: "▶"
        font.pixelSize: 56
        color: "white"
    }
    Rectangle {
        x: 16
        y: parent.height - 24
        width: parent.width - 32
        height: 4
        radius: 2
        color: "#90a4ae"
    }
}
