import QtQuick
import QtTest
import Tavi

// What a finger, a pointer and a keyboard do to a row of charts.
Item {
    id: root

    width: 412
    height: 400

    Rectangle {
        anchors.fill: parent
        color: Theme.page
    }

    Component {
        id: row

        ChartView {
            width: 412
            height: 206
        }
    }

    TestCase {
        name: "Charts"
        when: windowShown

        function show(charts, isStill = false) {
            const view = createTemporaryObject(row, root, {
                    "charts": charts,
                    "isStill": isStill
                });
            verify(view);
            waitForRendering(view);
            return view;
        }

        function chart(view) {
            return findChild(view, "chart");
        }

        function test_a_point_is_marked_by_finger_pointer_and_keyboard() {
            const view = show(stage.example("straight_line"));
            const drawn = chart(view);
            compare(drawn.markedWords, "");
            touchEvent(view).press(0, view, 330, 60).commit().release(0, view, 330, 60).commit();
            tryCompare(drawn, "markedWords", "f(x) = 2x - 1, x: 5, f(x) = 2x - 1: 9");
            mouseMove(view, 40, 190);
            compare(drawn.markedWords, "f(x) = 2x - 1, x: −4, f(x) = 2x - 1: −9");
            mouseMove(root, 200, 399);
            compare(drawn.markedWords, "");
            view.forceActiveFocus();
            keyClick(Qt.Key_Right);
            compare(drawn.markedWords, "f(x) = 2x - 1, x: −4, f(x) = 2x - 1: −9");
            keyClick(Qt.Key_Right);
            compare(drawn.markedWords, "f(x) = 2x - 1, x: 5, f(x) = 2x - 1: 9");
            keyClick(Qt.Key_Down);
            compare(drawn.markedWords, "f(x) = 2x - 1, x: 0.5, f(x) = 2x - 1: 0");
            keyClick(Qt.Key_Left);
            compare(drawn.markedWords, "f(x) = 2x - 1, x: 0.5, f(x) = 2x - 1: 0");
            compare(view.Accessible.description, drawn.markedWords);
            keyClick(Qt.Key_Escape);
            compare(drawn.markedWords, "");
            verify(view.Accessible.name.startsWith("Linear function. line chart. x from −10 to 10"));
        }

        function test_a_tree_opens_at_its_root_and_scrolls_under_its_title() {
            const view = show(stage.tree(20));
            const drawn = chart(view);
            const tree = findChild(view, "tree");
            compare(drawn.contentSize.width, 1048576 * 33 + 200);
            compare(tree.contentX, (drawn.contentSize.width - drawn.frame.width) / 2);
            compare(tree.contentY, 0);
            const before = grabImage(view);
            const x = tree.contentX;
            mouseDrag(view, 200, 100, -100, -60);
            tryVerify(() => tree.contentX > x && tree.contentY > 0);
            verify(!before.equals(grabImage(view)));
            view.forceActiveFocus();
            tryVerify(() => !tree.moving);
            tree.contentY = 70;
            keyClick(Qt.Key_Down);
            compare(tree.contentY, 118);
            for (let press = 0; press < 3; ++press)
                keyClick(Qt.Key_Up);
            compare(tree.contentY, 0);
        }

        function test_a_small_tree_stands_still() {
            const view = show(stage.tree(0));
            verify(!findChild(view, "tree").interactive);
            compare(chart(view).contentSize.width, chart(view).frame.width);
        }

        function test_the_unit_circle_is_played_and_played_again() {
            const view = show(stage.example("clockwise_angle"));
            const drawn = chart(view);
            const button = findChild(view, "replayButton");
            compare(drawn.progress, 0);
            const beginning = grabImage(view);
            view.start();
            tryVerify(() => !button.enabled);
            tryVerify(() => button.enabled, 10000, "as soon as the arrow has arrived");
            verify(drawn.progress > 0.5);
            tryCompare(drawn, "progress", 1, 10000);
            const end = grabImage(view);
            verify(!end.equals(beginning));
            verify(button.enabled);
            compare(button.Accessible.name, "Play again");
            mouseClick(button);
            tryVerify(() => !button.enabled);
            verify(drawn.progress > 0 && drawn.progress < 1);
            view.visible = false;
            const still = show(stage.example("clockwise_angle"), true);
            compare(chart(still).progress, 1);
            still.start();
            compare(chart(still).progress, 1);
            verify(grabImage(still).equals(end), "as it is when it has been played");
        }

        function test_what_is_shared_is_what_is_seen_data() {
            const rows = [];
            for (const example of ["straight_line", "sine", "tangent", "parabola_and_line", "four_coins_histogram", "two_coins_distribution", "single_trial_formula", "three_dice_tree", "more_than_one_turn", "two_lines_share_no_view"]) {
                for (const isDark of [false, true]) {
                    rows.push({
                            "tag": example + (isDark ? ", dark" : ""),
                            "example": example,
                            "isDark": isDark
                        });
                }
            }
            return rows;
        }

        function test_what_is_shared_is_what_is_seen(data) {
            stage.setDark(data.isDark);
            mouseMove(root, 200, 399);
            const view = show(stage.example(data.example), true);
            // The thumb that tells where a tree is scrolled to is of the screen alone.
            findChild(view, "tree").visible = false;
            verify(stage.differenceFromPicture(view) <= 2);
            stage.setDark(false);
        }

        function test_what_is_not_seen_holds_no_picture() {
            const view = show(stage.example("sine"));
            verify(chart(view).hasPoints);
            view.visible = false;
            verify(!chart(view).hasPoints);
            compare(chart(view).words, "");
            view.visible = true;
            verify(chart(view).hasPoints);
        }

        function test_charts_without_a_view_leave_the_row_blank() {
            const view = show(stage.example("two_lines_share_no_view"));
            verify(!view.activeFocusOnTab);
            compare(view.Accessible.name, "");
        }
    }
}
