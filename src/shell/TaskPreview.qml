import QtQuick
import Tavi

// The task as its working will begin, under a few words on what is missing or wrong. Without room for both the words
// go before.
Item {
    id: preview

    required property CalculateViewController controller
    property DTTextField faultyField: null
    property bool isCompact: false

    readonly property var task: controller.preview
    // Of several fields at fault one may be changed, after which nothing is wrong any more.
    readonly property bool isFaulty: faultyField !== null && task.hint !== ""
    readonly property bool isWrong: controller.notice !== "" || isFaulty
    readonly property string words: controller.notice || (isFaulty && !isCompact ? faultyField.faultWords : task.hint)

    readonly property int largestFormula: 24
    readonly property int smallestFormula: 14

    // Makes the formula as large as there is room for; one that is wider still is scrolled to its end.
    function fit() {
        formula.fontSize = largestFormula;
        const share = Math.min(1, view.width / formula.implicitWidth, view.height / formula.implicitHeight);
        if (share < 1)
            formula.fontSize = Math.max(smallestFormula, Math.floor(largestFormula * share));
        view.contentX = Math.max(0, formula.implicitWidth - view.width);
    }

    Accessible.role: Accessible.StatusBar
    Accessible.name: ""
    onTaskChanged: silence.restart()
    onWordsChanged: silence.restart()

    // What has changed is spoken once the typing pauses.
    Timer {
        id: silence

        interval: 700
        onTriggered: preview.Accessible.name = [preview.task.isReadable ? formula.spokenText : "", preview.words].filter(text => text !== "").join(". ")
    }

    Text {
        id: hint

        objectName: "hint"
        visible: text !== ""
        width: parent.width
        height: preview.isCompact ? parent.height : 40
        text: preview.words
        font: Theme.book(14)
        color: preview.isWrong ? Theme.legible(Theme.red, Theme.page) : Theme.legible(Theme.secondaryGray, Theme.page)
        fontSizeMode: preview.isCompact ? Text.Fit : Text.FixedSize
        minimumPixelSize: 12
        wrapMode: Text.WordWrap
        maximumLineCount: 2
        elide: Text.ElideRight
        horizontalAlignment: preview.isCompact ? Text.AlignHCenter : preview.faultyField && preview.faultyField.objectName === "exponentField" ? Text.AlignRight : Text.AlignLeft
        verticalAlignment: preview.isCompact ? Text.AlignVCenter : Text.AlignTop
        Accessible.ignored: true
    }

    Flickable {
        id: view

        anchors.fill: parent
        anchors.topMargin: preview.isCompact ? 0 : 24
        visible: !preview.isCompact || !hint.visible
        contentWidth: formula.width
        contentHeight: height
        interactive: contentWidth > width
        boundsBehavior: Flickable.StopAtBounds
        flickableDirection: Flickable.HorizontalFlick
        clip: true
        onWidthChanged: preview.fit()
        onHeightChanged: preview.fit()

        MathLabel {
            id: formula

            objectName: "formula"
            x: Math.max(0, (view.width - implicitWidth) / 2)
            y: Math.max(0, (view.height - implicitHeight) / 2)
            latex: preview.task.latex
            textColor: Theme.label
            backgroundColor: Theme.page
            Accessible.ignored: true
            onLatexChanged: preview.fit()
        }
    }

    EdgeShadow {
        anchors.fill: view
        visible: view.visible
        flickable: view
    }
}
