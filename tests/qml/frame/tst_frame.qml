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
    SpinnerOverlay {
    }
    ToastLayer {
    }

    Component {
        id: otherWindow

        Window {
            visible: true
        }
    }

    TestCase {
        name: "Frame"
        when: windowShown

        function init() {
            root.width = 412;
            root.height = 800;
            tryCompare(root.Window, "height", 800); // A window that still follows keeps clicks from buttons.
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

        function isShown(name) {
            const found = findChild(root.Window.contentItem, name);
            return found !== null && found.visible;
        }

        // What has the focus, by the names that tests know.
        function focused() {
            for (let each = root.Window.activeFocusItem; each; each = each.parent) {
                if (each.objectName)
                    return each.objectName;
            }
            return "";
        }

        // Whether who goes by key sees that it has the focus.
        function isRinged(name) {
            return item(name).activeFocus && findChild(item(name), "focusRing").visible;
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

        function tap(target) {
            touchEvent(root).press(0, target).commit().release(0, target).commit();
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

        function test_a_sheet_holds_the_menu_off_until_it_is_closed() {
            openMenu();
            mouseClick(item("menuRow 0 2"));
            verify(isShown("sheet"));
            tryVerify(() => item("sheet").mapToItem(root, 0, 0).y === 24);
            mouseClick(item("sheet"), 20, 120);
            mouseClick(root, 2, 10);
            verify(isShown("sheet"));
            verify(stage.isDrawerOpen);
            mouseClick(item("sheetCloseButton"));
            tryVerify(() => !isShown("sheet"));
            verify(stage.isDrawerOpen);
        }

        function test_in_a_wide_window_the_keyboard_reaches_the_open_menu() {
            root.width = 1000;
            openMenu();
            for (let i = 0; i < 30 && !item("menuRow 0 0").activeFocus; ++i)
                keyClick(Qt.Key_Tab);
            verify(isRinged("menuRow 0 0"));
        }

        function test_an_alert_holds_the_pages_off_until_it_is_answered() {
            stage.ask(["No", "Yes"]);
            tryVerify(() => isShown("alertAction1"));
            mouseClick(item("tab1"));
            compare(stage.selectedIndex, 0);
            keyClick(Qt.Key_Escape);
            mouseClick(item("alertAction1"));
            compare(stage.chosen, "Yes");
            tryVerify(() => !isShown("sheet"));
            mouseClick(item("tab1"));
            compare(stage.selectedIndex, 1);
        }

        function test_an_alert_can_be_answered_by_keyboard_data() {
            return [{
                    "tag": "Space presses",
                    "actions": ["No", "Yes"],
                    "keys": [Qt.Key_Space],
                    "answer": "No"
                }, {
                    "tag": "Return presses",
                    "actions": ["No", "Yes"],
                    "keys": [Qt.Key_Return],
                    "answer": "No"
                }, {
                    "tag": "Enter presses what Tab went to",
                    "actions": ["No", "Yes"],
                    "keys": [Qt.Key_Tab, Qt.Key_Enter],
                    "answer": "Yes"
                }, {
                    "tag": "Tab goes round",
                    "actions": ["No", "Yes"],
                    "keys": [Qt.Key_Tab, Qt.Key_Tab, Qt.Key_Space],
                    "answer": "No"
                }, {
                    "tag": "Escape gives the only answer",
                    "actions": ["OK"],
                    "keys": [Qt.Key_Escape],
                    "answer": "OK"
                }, {
                    "tag": "Escape cancels",
                    "actions": ["!Clear", "Cancel"],
                    "keys": [Qt.Key_Escape],
                    "answer": "Cancel"
                }, {
                    "tag": "nothing is destroyed by Space",
                    "actions": ["!Clear", "Cancel"],
                    "keys": [Qt.Key_Space],
                    "answer": "Cancel"
                }];
        }

        function test_an_alert_can_be_answered_by_keyboard(row) {
            keyClick(Qt.Key_Shift);
            stage.ask(row.actions);
            tryVerify(() => focused().startsWith("alertAction"));
            verify(isRinged(focused()), "seen by who goes by key");
            for (const key of row.keys)
                keyClick(key);
            compare(stage.chosen, row.answer);
            tryVerify(() => !isShown("sheet"));
        }

        // The answer is below the window's edge then: the thumb says that there is more, and keys go there.
        function test_an_alert_that_is_too_high_scrolls() {
            root.height = 160;
            stage.ask(["No", "Yes", "Perhaps"]);
            tryVerify(() => isShown("sheetThumb"));
            const scroll = item("sheetScroll");
            keyClick(Qt.Key_Up);
            compare(scroll.contentY, 0);
            for (let i = 0; i < 20; ++i)
                keyClick(Qt.Key_Down);
            compare(scroll.contentY, scroll.contentHeight - scroll.height);
            keyClick(Qt.Key_Escape);
            keyClick(Qt.Key_Space);
            tryVerify(() => !isShown("sheet"));
        }

        function test_the_wheel_scrolls_an_alert_over_the_menu() {
            openMenu();
            stage.ask(Array(20).fill("Yes"));
            tryVerify(() => isShown("sheetThumb"));
            const scroll = item("sheetScroll");
            mouseWheel(scroll, scroll.width / 2, scroll.height / 2, 0, -120);
            tryVerify(() => scroll.contentY > 0);
            keyClick(Qt.Key_Return);
            tryVerify(() => !isShown("sheet"));
        }

        function test_the_focus_does_not_return_to_what_was_hidden_meanwhile() {
            item("tab1").forceActiveFocus(Qt.TabFocusReason);
            stage.ask(["OK"]);
            tryVerify(() => focused() === "alertAction0");
            item("tab1").visible = false;
            keyClick(Qt.Key_Return);
            tryVerify(() => focused() === "tab0");
        }

        function test_a_toast_that_goes_behind_another_window_leaves_the_focus_in_what_is_presented() {
            item("tab1").forceActiveFocus(Qt.TabFocusReason);
            stage.ask(["OK"]);
            tryVerify(() => focused() === "alertAction0");
            stage.toast("Gone");
            const other = createTemporaryObject(otherWindow, root);
            other.requestActivate();
            tryVerify(() => !root.Window.activeFocusItem);
            stage.toast("");
            verify(!isShown("toast"));
            root.Window.window.requestActivate();
            tryVerify(() => root.Window.activeFocusItem);
            compare(focused(), "alertAction0");
        }

        function test_what_is_presented_lies_over_the_menu_and_waits_its_turn() {
            openMenu();
            mouseClick(item("menuRow 0 2"));
            stage.ask(["OK"]);
            verify(!isShown("alertAction0"));
            tryVerify(() => item("sheet").mapToItem(root, 0, 0).y === 24);
            mouseClick(item("sheetCloseButton"));
            tryVerify(() => isShown("alertAction0"));
            mouseClick(item("alertAction0"));
            compare(stage.chosen, "OK");
        }

        function test_styles_data() {
            const phone = [412, 800];
            const tablet = [1000, 700];
            return [{
                    "tag": "full screen",
                    "style": ViewController.FullScreen,
                    "onPhone": [0, 0, 412, 800],
                    "onTablet": [0, 0, 1000, 700]
                }, {
                    "tag": "page sheet",
                    "style": ViewController.PageSheet,
                    "onPhone": [0, 24, 412, 776],
                    "onTablet": [112, 32, 776, 636]
                }, {
                    "tag": "form sheet",
                    "style": ViewController.FormSheet,
                    "onPhone": [0, 24, 412, 776],
                    "onTablet": [260, 32, 480, 636]
                }, {
                    "tag": "over full screen",
                    "style": ViewController.OverFullScreen,
                    "onPhone": [0, 0, 412, 800],
                    "onTablet": [0, 0, 1000, 700]
                }, {
                    "tag": "over current context",
                    "style": ViewController.OverCurrentContext,
                    "onPhone": [0, 0, 412, 800],
                    "onTablet": [0, 0, 1000, 700]
                }];
        }

        function test_styles(row) {
            function place() {
                const page = item("presented");
                return [...[page.mapToItem(root, 0, 0)].map(corner => [corner.x, corner.y])[0], page.width, page.height];
            }
            stage.present(row.style, false);
            compare(place(), row.onPhone, "at once where it belongs, as it is not animated");
            root.width = 1000;
            root.height = 700;
            compare(place(), row.onTablet);
            stage.dismiss();
            verify(stage.isDismissed);
            stage.present(row.style, true);
            tryVerify(() => String(place()) === String(row.onTablet));
            stage.dismiss();
            verify(!stage.isDismissed, "not before nothing is seen of it");
            tryVerify(() => stage.isDismissed);
        }

        function test_only_a_tap_beside_an_action_sheet_cancels_it() {
            for (const touch of [mouseClick, tap]) {
                for (const isAnimated of [false, true]) {
                    stage.present(ViewController.ActionSheet, isAnimated);
                    tryVerify(() => item("presented").mapToItem(root, 0, 0).y === root.height - 200);
                    touch(item("presented"));
                    wait(200); // as long as it would take to go
                    verify(isShown("presented"));
                    touch(item("tab0"));
                    tryVerify(() => !isShown("presented"));
                }
            }
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

        function test_toasts_replace_each_other_fade_and_go() {
            openMenu();
            stage.ask(["OK"]);
            tryVerify(() => isShown("alertAction0"));
            stage.toast("First");
            stage.toast("Second");
            const start = Date.now();
            const toast = item("toast");
            compare(item("toastLabel").text, "Second");
            compare(toast.width, 0.9 * root.width);
            compare(toast.mapToItem(root, 0, 0).y, root.height - 120);
            tryVerify(() => toast.parent.opacity < 1, 60000);
            verify(Date.now() - start >= 2900);
            stage.toast("Third");
            compare(toast.parent.opacity, 1);
            tap(toast);
            verify(!isShown("toast"), "over menu and message, too");
            verify(isShown("alertAction0"));
            stage.toast("Fourth");
            mouseClick(toast);
            verify(!isShown("toast"));
            stage.toast("Fifth");
            tryVerify(() => !isShown("toast"), 60000);
        }

        function test_a_toast_over_the_pages_lets_the_mouse_through() {
            const area = createTemporaryQmlObject("import QtQuick; MouseArea { property int presses; anchors.fill: parent; onPressed: ++presses }", root);
            stage.toast("Over a key");
            mouseClick(item("toast"));
            verify(!isShown("toast"));
            compare(area.presses, 1);
            stage.toast("Over a key", "Undo");
            mouseClick(item("toast"));
            verify(!isShown("toast"));
            compare(area.presses, 1, "beside what is offered");
        }

        function test_a_toast_offers_an_action_to_finger_and_key() {
            stage.toast("Gone", "Undo");
            tap(item("toastAction"));
            compare(stage.chosen, "Undo");
            verify(!isShown("toast"));
            stage.toast("Gone", "Undo");
            for (let i = 0; i < 10 && focused() !== "toastAction"; ++i)
                keyClick(Qt.Key_Tab);
            keyClick(Qt.Key_Return);
            verify(!isShown("toast"));
            compare(stage.chosen, "UndoUndo");
        }

        function test_a_long_toast_is_cut_after_two_lines() {
            stage.toast("word ".repeat(60));
            const label = item("toastLabel");
            compare(label.lineCount, 2);
            verify(label.truncated);
            verify(label.contentHeight <= item("toast").height);
            mouseClick(label);
        }

        function test_the_spinner_holds_all_input_off_but_that_of_a_message_over_it() {
            keyClick(Qt.Key_Tab);
            const before = focused();
            verify(before);
            stage.spin(true);
            mouseClick(root, 300, 100);
            for (const key of [Qt.Key_Tab, Qt.Key_Space, Qt.Key_Return, Qt.Key_Escape])
                keyClick(key);
            compare(stage.selectedIndex, 0);
            verify(!stage.isDrawerOpen);
            stage.ask(["OK"]);
            tryVerify(() => focused() === "alertAction0");
            keyClick(Qt.Key_Return);
            compare(stage.chosen, "OK");
            stage.spin(false);
            tryVerify(() => focused() === before);
        }

        function test_no_hover_is_left_over_after_a_message() {
            const tab = item("tab1");
            mouseMove(tab, 20, 20);
            tryVerify(() => tab.isHovered);
            stage.ask(["OK"]);
            tryVerify(() => isShown("alertAction0"));
            mouseMove(item("alertAction0"));
            mouseClick(item("alertAction0"));
            tryVerify(() => !isShown("sheet"));
            tryVerify(() => !tab.isHovered);
        }
    }
}
