import QtQuick
import QtTest

// Opens a fresh frame on the screen for each test.
TestCase {
    required property FrameScreen screen

    when: windowShown

    function init() {
        screen.width = 412;
        screen.height = 800;
        tryCompare(screen.Window, "height", 800); // A window that still follows keeps clicks from buttons.
        stage.open(screen.holder);
    }

    function cleanup() {
        stage.close();
    }

    function item(name) {
        const found = findChild(screen.Window.contentItem, name);
        verify(found, name);
        return found;
    }

    function isShown(name) {
        const found = findChild(screen.Window.contentItem, name);
        return found !== null && found.visible;
    }

    // What has the focus, by the names that tests know.
    function focused() {
        for (let each = screen.Window.activeFocusItem; each; each = each.parent) {
            if (each.objectName)
                return each.objectName;
        }
        return "";
    }

    // Whether who goes by key sees that it has the focus.
    function isRinged(name) {
        return item(name).activeFocus && findChild(item(name), "focusRing").visible;
    }

    function tap(target) {
        touchEvent(screen).press(0, target).commit().release(0, target).commit();
    }

    function openMenu() {
        mouseClick(item("menuButton"));
        tryVerify(() => item("sideMenu").mapToItem(screen, 0, 0).x === 0);
    }
}
