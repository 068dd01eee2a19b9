import QtQuick
import QtTest
import Tavi

// What a finger and a keyboard do to the frame of the application.
Item {
    id: root

    width: 412
    height: 800

    Item {
        id: holder

        anchors.fill: parent
    }
    ToastLayer {
        id: toasts

        anchors.fill: parent
    }
    SpinnerOverlay {
        id: spinner

        anchors.fill: parent
    }

    TestCase {
        name: "Frame"
        when: windowShown

        function init() {
            root.width = 412;
            stage.open(holder);
        }

        function cleanup() {
            stage.close();
        }

        function item(name) {
            const found = findChild(root.Window.contentItem, name);
            verify(found, name);
            return found;
        }

        function shown() {
            return Array.from(toasts.children).filter(each => each.objectName === "toast");
        }

        function test_a_tab_opens_its_page_if_it_is_enabled() {
            stage.enableTab(1, false);
            mouseClick(item("tab1"));
            compare(stage.selectedIndex, 0);
            stage.enableTab(1, true);
            mouseClick(item("tab1"));
            compare(stage.selectedIndex, 1);
            tryCompare(item("tabLine"), "x", 206);
        }

        function test_the_keyboard_opens_a_tab_and_shows_where_it_is() {
            const tab = item("tab1");
            for (let i = 0; i < 10 && !tab.activeFocus; ++i)
                keyClick(Qt.Key_Tab);
            verify(tab.activeFocus);
            verify(tab.visualFocus);
            keyClick(Qt.Key_Space);
            compare(stage.selectedIndex, 1);
        }

        function test_touch_targets_are_large_enough() {
            for (const name of ["menuButton", "tab0", "tab1"]) {
                verify(item(name).width >= 48, name);
                verify(item(name).height >= 48, name);
            }
        }

        function test_the_menu_slides_in_and_a_tap_beside_it_closes_it() {
            mouseClick(item("menuButton"));
            verify(stage.isDrawerOpen);
            const menu = item("sideMenu");
            tryVerify(() => menu.mapToItem(root, 0, 0).x === 0);
            compare(menu.width, 304);
            mouseClick(root, 390, 400);
            verify(!stage.isDrawerOpen);
            tryVerify(() => !menu.visible);
        }

        function test_escape_closes_the_menu() {
            mouseClick(item("menuButton"));
            wait(300);
            keyClick(Qt.Key_Escape);
            verify(!stage.isDrawerOpen);
        }

        function test_in_a_wide_window_the_menu_stays_beside_the_pages() {
            root.width = 1000;
            mouseClick(item("menuButton"));
            tryVerify(() => item("tab0").mapToItem(root, 0, 0).x === 304);
            mouseClick(item("tab1"));
            compare(stage.selectedIndex, 1);
            verify(stage.isDrawerOpen);
            mouseClick(item("menuButton"));
            tryVerify(() => item("tab0").mapToItem(root, 0, 0).x === 0);
        }

        function openMenu() {
            mouseClick(item("menuButton"));
            tryVerify(() => item("sideMenu").mapToItem(root, 0, 0).x === 0);
        }

        function hasSheet() {
            const sheet = findChild(root.Window.contentItem, "sheet");
            return sheet !== null && sheet.visible;
        }

        function test_the_menu_shows_a_header_over_each_section_but_the_first() {
            openMenu();
            compare(item("menuRow 0 0").mapToItem(item("menuTable"), 0, 0).y, 0);
            for (let section = 1; section < 4; ++section) {
                const header = item("menuHeader" + section);
                compare(header.height, 30);
                compare(header.width, 304);
                verify(Qt.colorEqual(header.color, Theme.strongYellow));
                compare(item("menuRow " + section + " 0").y, header.y + 30);
            }
            compare(item("menuRow 0 0").height, 48);
        }

        function test_a_tap_on_a_row_opens_what_it_names() {
            openMenu();
            const row = item("menuRow 2 0");
            verify(row.text);
            mouseClick(row);
            verify(stage.openedLink.startsWith("https://store."));
            const first = stage.openedLink;
            mouseClick(item("menuRow 3 0"));
            verify(stage.openedLink !== first);
            verify(stage.isDrawerOpen);
        }

        function test_the_keyboard_goes_through_the_menu_and_shows_where_it_is() {
            openMenu();
            keyClick(Qt.Key_Down);
            verify(item("menuRow 0 0").visualFocus);
            keyClick(Qt.Key_Up);
            verify(item("menuRow 0 0").visualFocus);
            keyClick(Qt.Key_Tab);
            verify(item("menuRow 0 1").visualFocus);
            keyClick(Qt.Key_Down);
            verify(item("menuRow 0 2").visualFocus);
            verify(!hasSheet());
            keyClick(Qt.Key_Return);
            verify(hasSheet());
            keyClick(Qt.Key_Escape);
            tryVerify(() => !hasSheet());
            verify(stage.isDrawerOpen, "Escape closes the sheet and not the menu under it");
            keyClick(Qt.Key_Down);
            verify(item("menuRow 0 3").visualFocus);
            keyClick(Qt.Key_Escape);
            verify(!stage.isDrawerOpen);
        }

        function test_a_sheet_holds_the_menu_off_until_it_is_closed() {
            openMenu();
            mouseClick(item("menuRow 0 2"));
            verify(hasSheet());
            wait(50);
            mouseClick(item("sheet"), 20, 120);
            mouseClick(root, 2, 400);
            mouseClick(root, 408, 400);
            verify(hasSheet());
            verify(stage.isDrawerOpen);
            mouseClick(item("sheetCloseButton"));
            tryVerify(() => !hasSheet());
            verify(stage.isDrawerOpen);
        }

        function test_in_a_wide_window_the_keyboard_reaches_the_open_menu() {
            root.width = 1000;
            openMenu();
            for (let i = 0; i < 30 && !item("menuRow 0 0").activeFocus; ++i)
                keyClick(Qt.Key_Tab);
            verify(item("menuRow 0 0").visualFocus);
        }

        function test_an_alert_holds_the_pages_off_until_it_is_answered() {
            stage.ask();
            wait(50);
            mouseClick(item("tab1"));
            compare(stage.selectedIndex, 0);
            keyClick(Qt.Key_Escape);
            mouseClick(item("alertAction1"));
            compare(stage.chosen, "Yes");
            wait(50);
            mouseClick(item("tab1"));
            compare(stage.selectedIndex, 1);
        }

        function test_an_alert_can_be_answered_by_keyboard() {
            stage.ask();
            wait(50);
            keyClick(Qt.Key_Space);
            compare(stage.chosen, "No");
        }

        function test_toasts_stand_on_top_of_each_other_fade_and_go() {
            stage.toast("First");
            stage.toast("Second");
            compare(shown().map(each => each.text), ["First", "Second"]);
            compare(shown()[1].width, 0.9 * toasts.width);
            compare(shown()[1].y, toasts.height - 120);
            wait(2500);
            compare(shown()[0].opacity, 1);
            tryVerify(() => shown()[0].opacity < 1, 1500);
            tryVerify(() => shown().length === 0, 4000);
        }

        function test_a_long_toast_is_cut_after_two_lines() {
            stage.toast("word ".repeat(60));
            const toast = shown()[0];
            const label = toast.children[0];
            compare(label.lineCount, 2);
            verify(label.truncated);
            verify(label.contentHeight <= toast.height);
            toast.destroy();
        }

        function test_the_spinner_holds_all_input_off() {
            stage.spin(true);
            verify(spinner.visible);
            mouseClick(root, 300, 100);
            compare(stage.selectedIndex, 0);
            stage.spin(false);
            verify(!spinner.visible);
        }
    }
}
