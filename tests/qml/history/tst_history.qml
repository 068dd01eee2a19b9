import QtQuick
import QtTest
import Tavi

// What a finger does to the rows of the history.
Item {
    id: root

    readonly property string wide: "1".repeat(60)

    width: 412
    height: 870

    HistoryTestCase {
        name: "History"
        screen: root

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

        function test_the_history_can_be_exported_and_imported_from_its_page() {
            open([]);
            verify(!item("historySearch").visible);
            tap(item("historyMore"));
            tryVerify(() => shows("importHistory"));
            verify(shows("exportHistory"));
            keyClick(Qt.Key_Escape);
            tryVerify(() => !shows("importHistory"));
        }
    }
}
