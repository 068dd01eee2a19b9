import QtQuick
import QtTest
import Tavi

// Toasts, and the spinner.
FrameScreen {
    id: root

    Component {
        id: otherWindow

        Window {
            visible: true
        }
    }

    FrameTestCase {
        name: "Toasts"
        screen: root

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
    }
}
