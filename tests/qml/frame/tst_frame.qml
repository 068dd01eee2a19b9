import QtQuick
import QtTest
import Tavi

// What a finger and a keyboard do to tabs and menu.
FrameScreen {
    id: root

    FrameTestCase {
        name: "Frame"
        screen: root

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
            verify(isRinged("tab1"));
            keyClick(Qt.Key_Space);
            compare(stage.selectedIndex, 1);
        }

        function test_escape_leads_back_from_the_page_and_its_toolbar() {
            for (const place of ["tab1", "menuButton"]) {
                mouseClick(item("tab1"));
                compare(stage.selectedIndex, 1);
                item(place).forceActiveFocus();
                keyClick(Qt.Key_Escape);
                compare(stage.selectedIndex, 0, place);
            }
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

        function test_the_menu_shows_a_header_over_each_section_but_the_first() {
            openMenu();
            compare(item("menuRow 0 0").mapToItem(item("menuTable"), 0, 0).y, 0);
            for (let section = 1; section < 4; ++section) {
                const header = item("menuHeader" + section);
                compare(header.height, 30);
                compare(header.width, 304);
                verify(Qt.colorEqual(header.color, Theme.strongYellow));
                compare(header.mapToItem(item("menuRow " + section + " 0"), 0, 30).y, 0);
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

        function test_a_link_that_cannot_be_opened_says_so() {
            openMenu();
            stage.refuseLinks();
            mouseClick(item("menuRow 2 0"));
            tryVerify(() => isShown("toast"));
            compare(item("toastLabel").text, qsTrId("linkNotOpened"));
            mouseClick(item("toast"));
        }

        function test_a_link_waits_for_the_online_test_under_the_spinner_data() {
            return [{
                    "tag": "online",
                    "isOnline": true
                }, {
                    "tag": "offline",
                    "isOnline": false
                }];
        }

        function test_a_link_waits_for_the_online_test_under_the_spinner(row) {
            openMenu();
            mouseClick(item("menuRow 1 0"));
            tryVerify(() => ViewManager.isSpinnerVisible);
            tryCompare(stage, "onlineTests", 1);
            mouseClick(item("menuRow 1 0"));
            mouseClick(root, 390, 400);
            keyClick(Qt.Key_Escape);
            keyClick(Qt.Key_Return);
            verify(stage.isDrawerOpen);
            compare(stage.openedLink, "");
            wait(50);
            compare(stage.onlineTests, 1, "further taps do nothing");
            stage.answerOnlineTests(row.isOnline);
            tryVerify(() => !ViewManager.isSpinnerVisible);
            compare(stage.openedLink, row.isOnline ? "https://community.example.org/tavi" : "");
            if (row.isOnline)
                return;
            tryVerify(() => isShown("alertAction0"));
            mouseClick(item("alertAction0"));
            tryVerify(() => !isShown("alertAction0"));
        }

        function test_the_keyboard_goes_through_the_menu_and_shows_where_it_is() {
            item("menuButton").forceActiveFocus();
            keyClick(Qt.Key_Return);
            tryVerify(() => item("menuRow 0 0").activeFocus, 5000, "so that Return opens it and a screen reader says where it is");
            tryVerify(() => isShown("menuRow 0 3")); // The other rows come with the next frame.
            keyClick(Qt.Key_Up);
            verify(isRinged("menuRow 0 0"));
            keyClick(Qt.Key_Tab);
            verify(isRinged("menuRow 0 1"), focused());
            keyClick(Qt.Key_Down);
            verify(isRinged("menuRow 0 2"));
            verify(!isShown("sheet"));
            keyClick(Qt.Key_Return);
            verify(isShown("sheet"));
            keyClick(Qt.Key_Escape);
            tryVerify(() => !isShown("sheet"));
            verify(stage.isDrawerOpen, "Escape closes the sheet and not the menu under it");
            keyClick(Qt.Key_Down);
            verify(isRinged("menuRow 0 3"));
            keyClick(Qt.Key_Escape);
            verify(!stage.isDrawerOpen);
            tryVerify(() => item("menuButton").activeFocus, 5000, "so that the next key has somewhere to go");
        }

        function test_in_a_wide_window_the_keyboard_reaches_the_open_menu() {
            root.width = 1000;
            openMenu();
            for (let i = 0; i < 30 && !item("menuRow 0 0").activeFocus; ++i)
                keyClick(Qt.Key_Tab);
            verify(isRinged("menuRow 0 0"));
        }

        function test_the_menu_follows_the_finger() {
            const finger = touchEvent(root);
            const edge = () => isShown("sideMenu") ? item("sideMenu").mapToItem(root, 304, 0).x : 0;
            finger.press(0, root, 5, 400).commit();
            let before = 0;
            for (let x = 10; x <= 250; x += 10) {
                finger.move(0, root, x, 400).commit();
                verify(edge() >= before && edge() - before <= 45, x + ": from " + before + " to " + edge());
                verify(edge() <= x, x + ": the edge is at " + edge());
                before = edge();
                wait(10);
                compare(edge(), before, "at rest as long as the finger is");
            }
            verify(before > 200);
            finger.release(0, root, 250, 400).commit();
            verify(stage.isDrawerOpen);
            tryVerify(() => edge() === 304);
        }
    }
}
