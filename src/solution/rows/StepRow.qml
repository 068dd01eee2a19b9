import QtQuick
import Tavi

// The row of a step: a title over a formula that scrolls sideways and is never shrunk. It is as high as the controller
// says, and higher only where the formula would be cut.
TableRow {
    id: cell

    required property var measures
    property bool isMarked: false // What it says is not true.
    property bool hasExactValue: false
    // Of the formula, in per cent of its usual size.
    required property int formulaPercent
    readonly property bool hasTitle: content.title !== ""
    readonly property real headHeight: hasTitle ? measures.padding + title.height + measures.gap : measures.gap

    signal exactRequested

    height: Math.max(rowHeight.at(viewWidth), headHeight + Math.max(formula.implicitHeight, messageLabel.implicitHeight) + measures.padding)
    function pressed(key: int) {
        const furthest = Math.max(0, scrollView.contentWidth - scrollView.width);
        const way = key === Qt.Key_Right ? 48 : -48;
        scrollView.contentX = Math.max(0, Math.min(furthest, scrollView.contentX + way));
    }

    Accessible.role: Accessible.StaticText
    Accessible.name: [content.title, content.message || formula.spokenText, isMarked ? qsTrId("exactLineFalse") : ""].filter(text => text).join(", ")

    // The card of the whole table is rounded where it begins and ends.
    Rectangle {
        anchors.fill: parent
        radius: cell.content.isFirst || cell.content.isLast ? cell.measures.corner : 0
        color: Theme.background
    }
    Rectangle {
        y: cell.content.isFirst ? cell.measures.corner : 0
        width: parent.width
        height: parent.height - y - (cell.content.isLast ? cell.measures.corner : 0)
        color: Theme.background
    }
    Rectangle {
        visible: cell.hasTitle && !cell.content.isFirst
        x: cell.measures.edge
        width: parent.width - 2 * x
        height: cell.measures.hairline
        color: Theme.hairline
    }
    Rectangle {
        visible: cell.content.isResult
        y: cell.measures.padding
        width: cell.measures.barWidth
        height: parent.height - 2 * y
        radius: width / 2
        color: Theme.pink
    }

    Rectangle {
        objectName: "mark"
        visible: cell.isMarked
        x: cell.measures.barWidth + 2
        y: scrollView.y + (scrollView.height - height) / 2
        width: 6
        height: 6
        radius: 3
        color: Theme.accentText
    }

    Text {
        id: title

        x: cell.measures.edge
        y: formula.visible || messageLabel.visible ? cell.measures.padding : (parent.height - height) / 2
        width: parent.width - 2 * x - (exactButton.active ? exactButton.width + 12 : 0)
        visible: cell.hasTitle
        text: cell.content.title
        textFormat: Text.PlainText
        font: cell.content.titleFont
        color: Theme.label
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    Text {
        id: messageLabel

        x: cell.measures.messageIndent
        y: cell.headHeight
        width: parent.width - x - cell.measures.edge
        height: parent.height - y - cell.measures.padding
        visible: text
        text: cell.content.message
        textFormat: Text.PlainText
        font: Theme.book(cell.measures.messageSize)
        color: Theme.label
        wrapMode: Text.Wrap
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    Flickable {
        id: scrollView

        readonly property bool isWide: contentWidth > width

        objectName: "formulaScroll"
        y: cell.headHeight
        width: parent.width
        height: parent.height - y - cell.measures.gap
        visible: cell.content.latex
        contentWidth: formula.implicitWidth + 2 * formula.x
        contentHeight: height
        flickableDirection: Flickable.HorizontalFlick
        boundsBehavior: Flickable.StopAtBounds
        interactive: isWide
        clip: isWide

        MathLabel {
            id: formula

            objectName: "formula"
            x: cell.measures.edge
            y: (parent.height - height) / 2
            width: implicitWidth
            height: implicitHeight
            visible: scrollView.visible
            latex: cell.content.latex
            fontSize: cell.measures.formulaSize(cell.viewWidth) * cell.formulaPercent / 100
            textColor: Theme.label
            backgroundColor: Theme.background
            Accessible.ignored: true
        }
    }

    // Beside the title, where the round buttons of the page never lie over it.
    Loader {
        id: exactButton

        x: title.x + Math.min(title.width, title.implicitWidth) + 12
        y: title.y + (title.height - height) / 2
        z: 1
        active: cell.hasExactValue
        sourceComponent: IconButton {
            id: button

            objectName: "exactButton"
            text: qsTrId("exactButton")
            tintColor: cell.isMarked ? Theme.accentText : Theme.label
            onClicked: cell.exactRequested()

            background: Item {
                // Lower than what a finger hits, as it stands in a line with the title.
                Rectangle {
                    anchors.centerIn: parent
                    width: parent.width
                    height: 26
                    radius: height / 2
                    color: Qt.alpha(button.tintColor, button.down ? 0.2 : button.isHovered ? 0.08 : 0)
                    border.color: Qt.alpha(button.tintColor, 0.5)
                }
            }
        }
    }

    EdgeShadow {
        anchors.fill: scrollView
        flickable: scrollView
    }
    ScrollThumb {
        flickable: scrollView
        orientation: Qt.Horizontal
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 3
    }
}
