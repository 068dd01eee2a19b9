import QtQuick
import QtTest
import Tavi

// The edit mode of the history: its controls and the dragging of rows.
Item {
    id: root

    width: 412
    height: 870

    HistoryTestCase {
        name: "HistoryEditing"
        screen: root

        function test_editing_shows_controls_and_keeps_taps_from_reopening() {
            open(["a", "b"]);
            edit();
            tap(part(0, "historyRow0"));
            verify(stage.isHistoryOpen);
            tap(part(0, "deleteControl"));
            tryVerify(() => part(0, "deleteButton").enabled);
            tap(part(0, "deleteButton"));
            compare(stage.stored, ["b"]);
            tap(item("historyedit"));
            verify(!stage.isEditing);
        }

        function test_dragging_shifts_the_rows_and_exchanges_the_ends() {
            open(["A", "B", "C"]);
            edit();
            const drop = drag(0, 2);
            tryVerify(() => item("draggedRow").visible);
            compare(stage.stored, ["A", "B", "C"]);
            drop();
            compare(stage.stored, ["C", "B", "A"]);
            tryVerify(() => shown().join() === "B,C,A");
            verify(!item("draggedRow").visible);
            stage.close();
            open(stage.stored);
            compare(shown(), ["C", "B", "A"]);
        }

        function test_dragging_upwards_and_back_again() {
            open(["A", "B", "C"]);
            edit();
            drag(2, -2)();
            compare(stage.stored, ["C", "B", "A"]);
            tryVerify(() => shown().join() === "C,A,B");
            drag(1, 0)();
            compare(stage.stored, ["C", "B", "A"]);
        }

        function test_a_finger_drags_too_and_at_the_foot_the_list_goes_on() {
            open(Array.from({
                        "length": 40
                    }, (_, row) => String(row)));
            edit();
            const handles = item("dragHandles");
            const finger = touchEvent(handles);
            finger.press(0, handles, 24, 100).commit();
            finger.move(0, handles, 24, 400).commit();
            finger.move(0, handles, 24, handles.height - 10).commit();
            tryVerify(() => table().contentY > 1000, 60000);
            finger.release(0, handles, 24, handles.height - 10).commit();
            verify(stage.stored.indexOf("1") > 20);
        }

        function test_without_edit_mode_there_is_nothing_to_drag() {
            open(["A", "B", "C"]);
            drag(0, 2)();
            compare(stage.stored, ["A", "B", "C"]);
            verify(!item("draggedRow").visible);
        }

        function test_alt_and_an_arrow_move_a_row_while_editing() {
            open(["a", "b", "c"]);
            focusTable();
            keyClick(Qt.Key_Down, Qt.AltModifier);
            compare(stage.stored, ["a", "b", "c"]);
            edit();
            table().forceActiveFocus();
            keyClick(Qt.Key_Down, Qt.AltModifier);
            keyClick(Qt.Key_Down, Qt.AltModifier);
            keyClick(Qt.Key_Down, Qt.AltModifier);
            compare(stage.stored, ["b", "c", "a"]);
            compare(table().currentIndex, 2);
            keyClick(Qt.Key_Up, Qt.AltModifier);
            compare(stage.stored, ["b", "a", "c"]);
            keyClick(Qt.Key_Return);
            verify(stage.isHistoryOpen);
        }

        function test_escape_ends_editing() {
            open(["a", "b"]);
            edit();
            keyClick(Qt.Key_Escape);
            verify(!stage.isEditing);
            keyClick(Qt.Key_Escape);
            verify(!stage.isEditing);
        }

        function test_a_title_tells_the_day_except_while_editing() {
            open(["a", "b"]);
            compare(item("dayTitle").text, "Earlier");
            compare(cell(0).Accessible.description, "Earlier");
            edit();
            tryCompare(cell(0), "y", 0);
            tap(item("historyedit"));
            tryVerify(() => cell(0).y > 0);
        }
    }
}
