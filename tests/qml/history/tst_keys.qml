import QtQuick
import QtTest
import Tavi

// What a keyboard does to the history, and what assistive technology is told.
Item {
    id: root

    width: 412
    height: 870

    HistoryTestCase {
        name: "HistoryKeys"
        screen: root

        function isInSight(row) {
            const cell = table().itemAtIndex(row);
            return cell && cell.y >= table().contentY && cell.y + cell.height <= table().contentY + table().height;
        }

        function test_keys_go_through_the_rows_and_reopen_one() {
            open(["a", "b", "c"]);
            focusTable();
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Up);
            keyClick(Qt.Key_Return);
            compare(stage.picked, "b");
        }

        function test_a_key_brings_the_current_row_into_sight_at_once() {
            open(Array.from({
                        "length": 400
                    }, (_, row) => String(row)));
            focusTable();
            for (const [key, row] of [[Qt.Key_End, 399], [Qt.Key_PageUp, 390], [Qt.Key_Home, 0], [Qt.Key_Down, 1]]) {
                keyClick(key);
                compare(table().currentIndex, row);
                verify(isInSight(row), row);
            }
            keyClick(Qt.Key_End);
            keyClick(Qt.Key_Delete);
            compare(stage.stored.length, 399);
            compare(stage.stored[398], "398");
            compare(table().currentIndex, 398);
            verify(isInSight(398));
        }

        function test_a_key_does_nothing_to_a_row_out_of_sight() {
            open(Array.from({
                        "length": 400
                    }, (_, row) => String(row)));
            focusTable();
            for (const key of [Qt.Key_Delete, Qt.Key_Return, Qt.Key_Space, Qt.Key_Right]) {
                table().positionViewAtEnd();
                keyClick(key);
                verify(isInSight(0));
                compare(stage.stored.length, 400);
                verify(stage.isHistoryOpen);
            }
            keyClick(Qt.Key_Delete);
            compare(stage.stored.length, 399);
        }

        function test_the_delete_key_deletes() {
            open(["a", "b", "c"]);
            focusTable();
            keyClick(Qt.Key_End);
            keyClick(Qt.Key_Delete);
            compare(stage.stored, ["a", "b"]);
            keyClick(Qt.Key_Delete);
            keyClick(Qt.Key_Delete);
            keyClick(Qt.Key_Delete);
            compare(stage.stored, []);
        }

        function test_deleting_can_be_undone() {
            open(["a", "b", "c"]);
            focusTable();
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Delete);
            compare(ViewManager.toastText, "Calculation deleted");
            compare(ViewManager.toastActionTitle, "Undo");
            keyClick(Qt.Key_Z, Qt.ControlModifier);
            compare(stage.stored, ["a", "b", "c"]);
            compare(shown(), ["a", "b", "c"]);
            compare(table().currentIndex, 1);
            compare(ViewManager.toastText, "");
            keyClick(Qt.Key_Z, Qt.ControlModifier);
            compare(stage.stored, ["a", "b", "c"]);
        }

        function test_a_row_is_copied_by_key_and_from_its_menu() {
            open(["2^{3}", "3^{4}"]);
            focusTable();
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_C, Qt.ControlModifier);
            compare(stage.clipboard, "3^{4}");
            keyClick(Qt.Key_Up);
            keyClick(Qt.Key_Menu);
            tryVerify(() => shows("copyLatex"));
            tap(item("copyLatex"));
            compare(stage.clipboard, "2^{3}");
            tryVerify(() => table().activeFocus);
            for (const open of [() => mouseClick(cell(1), 40, 30, Qt.RightButton), () => mousePress(cell(1), 40, 30)]) {
                open();
                tryVerify(() => shows("copyTyped"));
                mouseRelease(cell(1), 40, 30);
                verify(item("copyTyped").height >= 48);
                keyClick(Qt.Key_Escape);
                tryVerify(() => !shows("copyTyped"));
                verify(stage.isHistoryOpen);
            }
        }

        function test_assistive_technology_is_told_of_rows_and_what_belongs_to_them() {
            open(["2", "\\frac{3}{4}"]);
            compare(stage.told(table()), ["List History", "ListItem 2", "ListItem 3 over 4"]);
            swipe(1, -150);
            compare(stage.told(cell(1)), ["ListItem 3 over 4", "Button Delete 3 over 4"]);
            edit();
            focusTable();
            keyClick(Qt.Key_Down, Qt.AltModifier);
            compare(stage.stored, ["\\frac{3}{4}", "2"]);
            verify(cell(1).activeFocus);
            compare(stage.told(item("movedRow")), ["AlertMessage Moved to 2 of 2"]);
        }

        function test_rows_say_their_task() {
            open(["\\frac{3}{4}", ""]);
            compare(part(0, "historyRow0").text, "3 over 4");
            compare(part(1, "historyRow1").text, "Calculation without a formula");
            compare(cell(1).height, 72);
        }
    }
}
