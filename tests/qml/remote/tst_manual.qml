import QtQuick
import QtTest
import Tavi

// How the drawing of the manual is brought nearer.
Item {
    id: root

    width: 412
    height: 800

    Loader {
        id: loader

        anchors.fill: parent
        sourceComponent: ManualPage {
            controller: stage.manual
        }
    }

    TestCase {
        name: "Manual"
        when: windowShown

        function init() {
            loader.active = false;
            loader.active = true;
        }

        function drawing() {
            return findChild(loader.item, "manualScroll");
        }

        // What of the drawing is at a point of the view, from 0 to 1.
        function shownAt(point) {
            const scroll = drawing();
            return Qt.point((scroll.contentX + point.x) / scroll.contentWidth, (scroll.contentY + point.y) / scroll.contentHeight);
        }

        // Whether the same of the drawing is still there.
        function verifyIsAt(point, shown) {
            fuzzyCompare(shownAt(point).x, shown.x, 0.02);
            fuzzyCompare(shownAt(point).y, shown.y, 0.02);
        }

        function test_no_edge_of_the_drawing_lies_outside_data() {
            return [Qt.size(412, 800), Qt.size(800, 360), Qt.size(1216, 736)].map(size => ({
                            "tag": size.width + " x " + size.height,
                            "size": size
                        }));
        }

        function test_no_edge_of_the_drawing_lies_outside(row) {
            loader.anchors.fill = undefined;
            loader.width = row.size.width;
            loader.height = row.size.height;
            const frame = findChild(loader.item, "manualFrame");
            verify(frame.y + frame.height <= row.size.height, frame.y + frame.height);
            verify(frame.x + frame.width <= row.size.width);
            loader.anchors.fill = root;
        }

        function test_the_wheel_zooms_around_the_pointer_and_back() {
            const point = Qt.point(300, 100);
            const shown = shownAt(point);
            mouseWheel(drawing(), point.x, point.y, 0, 120);
            compare(drawing().zoom, 1.25);
            verifyIsAt(point, shown);
            mouseWheel(drawing(), point.x, point.y, 0, 480);
            fuzzyCompare(drawing().zoom, 3.05, 0.01);
            verifyIsAt(point, shown);
            mouseWheel(drawing(), point.x, point.y, 0, 1200);
            compare(drawing().zoom, 4, "no nearer than that");
            mouseWheel(drawing(), point.x, point.y, 0, -120);
            fuzzyCompare(drawing().zoom, 3.2, 0.01);
            mouseWheel(drawing(), point.x, point.y, 0, -1200);
            compare(drawing().zoom, 1);
            compare(drawing().contentX, 0);
            compare(drawing().contentY, 0);
        }

        function tapTwice(point) {
            const finger = touchEvent(root);
            for (let tap = 0; tap < 2; ++tap) {
                finger.press(0, drawing(), point.x, point.y).commit();
                finger.release(0, drawing(), point.x, point.y).commit();
            }
        }

        function test_a_double_tap_zooms_where_it_is_and_back() {
            const point = Qt.point(100, 150);
            const shown = shownAt(point);
            tapTwice(point);
            compare(drawing().zoom, 2.5);
            verifyIsAt(point, shown);
            wait(600); // longer than a double tap
            tapTwice(Qt.point(200, 200));
            compare(drawing().zoom, 1);
        }

        function test_two_fingers_zoom() {
            const fingers = touchEvent(root);
            const at = x => {
                const point = drawing().mapToItem(root, x, 150);
                return [root, point.x, point.y];
            };
            const shown = shownAt(Qt.point(200, 150));
            fingers.press(0, ...at(170)).commit();
            fingers.stationary(0).press(1, ...at(230)).commit();
            for (let step = 1; step <= 12; ++step)
                fingers.move(0, ...at(170 - 10 * step)).move(1, ...at(230 + 10 * step)).commit();
            verify(drawing().zoom > 2, "zoom " + drawing().zoom);
            verifyIsAt(Qt.point(200, 150), shown);
            const near = drawing().zoom;
            for (let step = 11; step >= 6; --step)
                fingers.move(0, ...at(170 - 10 * step)).move(1, ...at(230 + 10 * step)).commit();
            verify(drawing().zoom < near);
            fingers.release(0, ...at(110)).release(1, ...at(290)).commit();
        }

        function test_one_finger_moves_what_is_near() {
            drawing().zoomAt(Qt.point(0, 0), 3);
            const fingers = touchEvent(root);
            fingers.press(0, drawing(), 300, 250).commit();
            for (let x = 290; x >= 100; x -= 10)
                fingers.move(0, drawing(), x, 250).commit();
            verify(drawing().contentX > 50, "at " + drawing().contentX);
            compare(drawing().zoom, 3);
            fingers.release(0, drawing(), 100, 250).commit();
        }

        function test_keys_zoom_and_move() {
            drawing().forceActiveFocus();
            keyClick(Qt.Key_Plus);
            compare(drawing().zoom, 1.25);
            keyClick(Qt.Key_Equal);
            verify(drawing().zoom > 1.5);
            keyClick(Qt.Key_Minus);
            compare(drawing().zoom, 1.25);
            const left = drawing().contentX;
            keyClick(Qt.Key_Right);
            verify(drawing().contentX > left);
            keyClick(Qt.Key_Left);
            compare(drawing().contentX, left);
            keyClick(Qt.Key_0);
            compare(drawing().zoom, 1);
            keyClick(Qt.Key_Right);
            compare(drawing().contentX, 0, "there is no more of it");
        }
    }
}
