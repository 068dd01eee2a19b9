import QtQuick
import QtQuick.Templates as T
import Tavi

// What can be done with what was pressed, at that place; of MenuEntry.
T.Menu {
    id: menu

    property Item focusBefore

    // By key it begins at the first entry, which is thereby told.
    function begin() {
        for (let i = 0; i < count; ++i) {
            if (!itemAt(i).enabled)
                continue;
            currentIndex = i;
            return;
        }
    }

    implicitWidth: 240
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    topPadding: 8
    bottomPadding: 8
    margins: 8
    modal: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onAboutToShow: focusBefore = parent.Window.activeFocusItem
    onOpened: if (KeyboardUse.isCurrent)
        begin()
    onClosed: if (focusBefore)
        focusBefore.forceActiveFocus(Qt.PopupFocusReason)

    background: Rectangle {
        radius: 8
        color: Theme.groupedBackground
        border.width: 1
        border.color: Theme.hairline
    }
    contentItem: ListView {
        implicitHeight: contentHeight
        model: menu.contentModel
        currentIndex: menu.currentIndex
        interactive: false
    }
}
