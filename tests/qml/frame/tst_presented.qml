import QtQuick
import QtTest
import Tavi

// Alerts, sheets and pages over the others.
FrameScreen {
    id: root

    FrameTestCase {
        name: "Presented"
        screen: root

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
    }
}
