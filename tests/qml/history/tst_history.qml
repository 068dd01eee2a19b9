import QtQuick
import QtTest
import Tavi

// What a finger and a keyboard do to the history.
Item {
    id: root

    readonly property string wide: "1".repeat(60)

    width: 412
    height: 870

    TestCase {
        name: "History"
        when: windowShown

        function cleanup() {
            stage.close();
        }

        function open(tasks) {
            stage.open(root, tasks);
            waitForRendering(root);
        }

        function find(name) {
            return findChild(root.Window.contentItem, name);
        }

        function item(name) {
            const found = find(name);
            verify(found, name);
            return found;
        }

        function table() {
            return item("historyTable");
        }

        function cell(row) {
            tryVerify(() => table().itemAtIndex(row));
            return table().itemAtIndex(row);
        }

        function part(row, name) {
            return findChild(cell(row), name);
        }

        // The tasks from the top of the screen to its foot.
        function shown() {
            const cells = [];
            for (let row = 0; row < table().count; ++row)
                cells.push(cell(row));
            return cells.sort((a, b) => a.y - b.y).map(each => each.mathLabel.latex);
        }

        function tap(target) {
            const finger = touchEvent(target);
            finger.press(0, target).commit();
            finger.release(0, target).commit();
            wait(Qt.styleHints.mouseDoubleClickInterval + 20);
        }

        function draw(target, dx, dy) {
            const x = target.width / 2;
            const y = target.height / 2;
            const finger = touchEvent(target);
            const start = target.mapToItem(root, x, y);
            finger.press(0, root, start.x, start.y).commit();
            for (let step = 1; step <= 10; ++step) {
                wait(10);
                finger.move(0, root, start.x + dx * step / 10, start.y + dy * step / 10).commit();
            }
            wait(100);
            finger.release(0, root, start.x + dx, start.y + dy).commit();
        }

        function swipe(row, dx) {
            draw(part(row, "historyRow" + row), dx, 0);
            const content = part(row, "historyContent");
            tryVerify(() => !content.moving);
            wait(200);
        }

        function edit() {
            tap(item("historyedit"));
            tryVerify(() => part(0, "historyContent").x === 52);
        }

        // By the handle of the row, over so many rows.
        function drag(row, rows) {
            const handles = item("dragHandles");
            const place = cell(row).mapToItem(handles, 0, cell(row).height / 2);
            mousePress(handles, 24, place.y);
            for (let step = 1; step <= 10; ++step)
                mouseMove(handles, 24, place.y + 72 * rows * step / 10, 10);
            return () => mouseRelease(handles, 24, place.y + 72 * rows);
        }

        function test_a_tap_reopens_the_row() {
            open(["2^{3}", "3^{4}"]);
            tap(part(1, "historyRow1"));
            compare(stage.picked, "3^{4}");
            verify(!stage.isHistoryOpen);
        }

        function test_a_swipe_shows_the_delete_button_which_deletes() {
            open(["a", "b", "c"]);
            swipe(1, -150);
            const button = part(1, "deleteButton");
            verify(button.width >= 48 && button.height >= 48);
            verify(button.mapToItem(root, button.width, 0).x <= root.width);
            compare(stage.stored, ["a", "b", "c"]);
            tap(button);
            compare(stage.stored, ["a", "c"]);
            tryVerify(() => shown().join() === "a,c");
            tryVerify(() => cell(1).y - cell(0).y === 72);
        }

        function test_a_deleted_row_fades() {
            open(["a", "b"]);
            const gone = cell(0);
            const opacities = [];
            let tookTaps = false;
            gone.opacityChanged.connect(() => {
                    opacities.push(gone.opacity);
                    tookTaps = tookTaps || gone.enabled;
                });
            swipe(0, -150);
            tap(part(0, "deleteButton"));
            tryVerify(() => opacities.includes(0));
            verify(opacities.some(each => each > 0 && each < 1));
            verify(!tookTaps);
        }

        function test_a_short_swipe_shows_nothing() {
            open(["a"]);
            swipe(0, -40);
            tryCompare(part(0, "historyContent"), "contentX", 0);
            verify(!part(0, "deleteButton").enabled);
        }

        function test_only_one_row_shows_its_delete_button_and_a_tap_hides_it() {
            open(["a", "b"]);
            swipe(0, -150);
            swipe(1, -150);
            tryCompare(part(0, "historyContent"), "contentX", 0);
            verify(part(1, "deleteButton").enabled);
            tap(part(0, "historyRow0"));
            tryCompare(part(1, "historyContent"), "contentX", 0);
            compare(stage.picked, "");
        }

        function test_a_wide_formula_scrolls_to_its_end_before_the_delete_button() {
            open([root.wide]);
            const content = part(0, "historyContent");
            const edge = part(0, "edgeShadow").children[1];
            const hidden = part(0, "formula").width + 32 - content.width;
            verify(hidden > 0);
            verify(edge.visible);
            draw(part(0, "historyContent"), -120, 0);
            tryVerify(() => content.contentX > 60);
            verify(!part(0, "deleteButton").enabled);
            for (let i = 0; i < 2; ++i)
                swipe(0, -350);
            compare(content.contentX, content.endX);
            verify(!edge.visible);
        }

        function test_a_finger_moves_the_list_up_and_down() {
            open(Array.from({
                        "length": 40
                    }, (_, row) => String(row)));
            draw(part(5, "historyRow5"), 0, -200);
            verify(table().contentY > 100);
            compare(stage.picked, "");
        }

        function test_only_rows_near_the_screen_are_typeset() {
            open(Array.from({
                        "length": 10000
                    }, (_, row) => String(row)));
            verify(table().itemAtIndex(5));
            verify(!table().itemAtIndex(40));
            table().positionViewAtEnd();
            tryVerify(() => table().itemAtIndex(9999));
            compare(cell(9999).mathLabel.latex, "9999");
        }

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

        function test_clearing_asks_first() {
            open(["a", "b"]);
            tap(item("historyclear"));
            tap(item("alertAction1"));
            compare(stage.stored.length, 2);
            tap(item("historyclear"));
            keyClick(Qt.Key_Escape);
            tryVerify(() => !find("alertAction1"));
            tap(item("historyclear"));
            tap(item("alertAction0"));
            compare(stage.stored.length, 0);
            verify(item("emptyHistory").visible);
        }

        function test_an_empty_history_leads_to_the_calculate_page() {
            open([]);
            verify(item("emptyHistory").visible);
            const button = item("historyCalculate");
            verify(button.height >= 48);
            tap(button);
            verify(!stage.isHistoryOpen);
        }

        function focusTable() {
            for (let i = 0; i < 10 && !table().activeFocus; ++i)
                keyClick(Qt.Key_Tab);
            verify(table().activeFocus);
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

        function isInSight(row) {
            const cell = table().itemAtIndex(row);
            return cell && cell.y >= table().contentY && cell.y + cell.height <= table().contentY + table().height;
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

        function test_clearing_can_be_undone() {
            open(["a", "b"]);
            tap(item("historyclear"));
            tap(item("alertAction0"));
            compare(stage.stored, []);
            ViewManager.chooseToastAction();
            compare(stage.stored, ["a", "b"]);
            tryVerify(() => shown().join() === "a,b");
            verify(!item("emptyHistory").visible);
        }

        function test_escape_ends_editing() {
            open(["a", "b"]);
            edit();
            keyClick(Qt.Key_Escape);
            verify(!stage.isEditing);
            keyClick(Qt.Key_Escape);
            verify(!stage.isEditing);
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

        function shows(name) {
            const found = find(name);
            return found !== null && found.visible;
        }

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

        function test_a_title_tells_the_day_except_while_editing() {
            open(["a", "b"]);
            compare(item("dayTitle").text, "Earlier");
            compare(cell(0).Accessible.description, "Earlier");
            edit();
            tryCompare(cell(0), "y", 0);
            tap(item("historyedit"));
            tryVerify(() => cell(0).y > 0);
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

        function test_the_history_can_be_exported_and_imported_from_its_page() {
            open([]);
            verify(!item("historySearch").visible);
            tap(item("historyMore"));
            tryVerify(() => shows("importHistory"));
            verify(shows("exportHistory"));
            keyClick(Qt.Key_Escape);
            tryVerify(() => !shows("importHistory"));
        }

        function test_rows_say_their_task() {
            open(["\\frac{3}{4}", ""]);
            compare(part(0, "historyRow0").text, "3 over 4");
            compare(part(1, "historyRow1").text, "Calculation without a formula");
            compare(cell(1).height, 72);
        }
    }
}
