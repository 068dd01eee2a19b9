import QtQuick
import Tavi

// A row of the solution: a title over a formula that scrolls sideways and is never shrunk. It is as high as the
// controller says, and higher only where the formula would be cut. StepRowPicture draws the same for a picture.
SolutionStepTableViewCell {
    id: cell

    required property real rowHeight
    readonly property bool hasTitle: stepTitle !== ""
    readonly property int corner: 12
    readonly property real headHeight: hasTitle ? 12 + title.height + 8 : 8

    height: Math.max(rowHeight, headHeight + Math.max(formula.implicitHeight, messageLabel.implicitHeight) + 12)
    Accessible.role: Accessible.StaticText
    Accessible.name: [stepTitle, message || formula.spokenText].filter(text => text).join(", ")

    // The card of the whole table is rounded where it begins and ends.
    Rectangle {
        anchors.fill: parent
        radius: cell.isFirst || cell.isLast ? cell.corner : 0
        color: Theme.background
    }
    Rectangle {
        y: cell.isFirst ? cell.corner : 0
        width: parent.width
        height: parent.height - y - (cell.isLast ? cell.corner : 0)
        color: Theme.background
    }
    Rectangle {
        visible: cell.hasTitle && !cell.isFirst
        x: 16
        width: parent.width - 32
        height: 1
        color: Theme.hairline
    }
    Rectangle {
        visible: cell.isResult
        y: 12
        width: 4
        height: parent.height - 24
        radius: 2
        color: Theme.pink
    }

    Text {
        id: title

        x: 16
        y: formula.visible || messageLabel.visible ? 12 : (parent.height - height) / 2
        width: parent.width - 32
        visible: cell.hasTitle
        text: cell.stepTitle
        textFormat: Text.PlainText
        font: cell.titleFont
        color: Theme.label
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    Text {
        id: messageLabel

        x: 28
        y: cell.headHeight
        width: parent.width - 44
        height: parent.height - y - 12
        visible: text
        text: cell.message
        textFormat: Text.PlainText
        font: Theme.book(16)
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
        height: parent.height - y - 8
        visible: cell.latex
        contentWidth: formula.implicitWidth + 32
        contentHeight: height
        flickableDirection: Flickable.HorizontalFlick
        boundsBehavior: Flickable.StopAtBounds
        interactive: isWide
        clip: isWide
        activeFocusOnTab: isWide
        Keys.onRightPressed: contentX = Math.min(contentWidth - width, contentX + 48)
        Keys.onLeftPressed: contentX = Math.max(0, contentX - 48)

        MathLabel {
            id: formula

            objectName: "formula"
            x: 16
            y: (parent.height - height) / 2
            width: implicitWidth
            height: implicitHeight
            visible: scrollView.visible
            latex: cell.latex
            fontSize: cell.formulaSize
            textColor: Theme.label
            backgroundColor: Theme.background
            Accessible.ignored: true
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
    FocusRing {
        anchors.fill: scrollView
        visible: scrollView.activeFocus
    }
}
