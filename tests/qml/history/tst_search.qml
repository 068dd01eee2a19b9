import QtQuick
import QtTest
import Tavi

// The search field of the history.
Item {
    id: root

    width: 412
    height: 870

    HistoryTestCase {
        name: "HistorySearch"
        screen: root

        function type(words) {
            for (const letter of words)
                keyClick(letter);
        }

        function test_the_field_finds_rows_and_escape_leaves_it() {
            open(["\\sqrt{2}", "2^{3}", "3^{4}"]);
            keyClick(Qt.Key_F, Qt.ControlModifier);
            const field = item("historySearch");
            verify(field.activeFocus);
            verify(field.height >= 48);
            type("2");
            compare(shown(), ["\\sqrt{2}", "2^{3}"]);
            tryVerify(() => stage.told(item("foundRows")).join() === "AlertMessage Found: 2");
            type("x");
            verify(item("nothingFound").visible);
            verify(!item("emptyHistory").visible);
            keyClick(Qt.Key_Backspace);
            keyClick(Qt.Key_Backspace);
            type("power");
            compare(shown(), ["2^{3}", "3^{4}"]);
            keyClick(Qt.Key_Escape);
            compare(field.text, "");
            verify(table().activeFocus);
            compare(table().count, 3);
            verify(stage.isHistoryOpen);
            tap(field);
            type("4");
            keyClick(Qt.Key_Return);
            verify(table().activeFocus);
            keyClick(Qt.Key_Escape);
            compare(table().count, 3);
            tap(field);
            type("4");
            tap(item("clearSearch"));
            compare(table().count, 3);
            verify(field.activeFocus);
        }

        function test_what_is_found_is_deleted_and_reopened_but_not_moved() {
            open(["a", "b", "ab", "c", "b"]);
            edit();
            keyClick(Qt.Key_F, Qt.ControlModifier);
            type("b");
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Down, Qt.AltModifier);
            drag(0, 2)();
            compare(stage.stored, ["a", "b", "ab", "c", "b"]);
            keyClick(Qt.Key_Home);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Delete);
            compare(stage.stored, ["a", "b", "c", "b"]);
            compare(shown(), ["b", "b"]);
            keyClick(Qt.Key_Z, Qt.ControlModifier);
            compare(shown(), ["b", "ab", "b"]);
            keyClick(Qt.Key_Escape);
            verify(stage.isEditing);
            keyClick(Qt.Key_Escape);
            verify(!stage.isEditing);
            keyClick(Qt.Key_F, Qt.ControlModifier);
            type("a");
            tap(part(1, "historyRow1"));
            compare(stage.picked, "ab");
        }
    }
}
