import QtQuick
import QtTest
import Tavi

// How stars are given.
Item {
    id: root

    width: 412
    height: 800

    RatingPage {
        id: page

        anchors.fill: parent
        controller: stage.rating
    }

    TestCase {
        name: "Rating"
        when: windowShown

        function init() {
            page.controller.rating = 0;
            stars().forceActiveFocus();
        }

        function stars() {
            return findChild(page, "StarRatingView");
        }

        // The middle of a star, counted from 1.
        function star(number) {
            const side = stars().side;
            return (stars().width - 5 * side) / 2 + (number - 0.5) * side;
        }

        function test_a_tap_gives_as_many_stars_as_it_is_at() {
            for (let number = 1; number <= 5; ++number) {
                mouseClick(stars(), star(number), 20);
                compare(page.controller.rating, number);
            }
        }

        function test_the_stars_follow_the_finger_and_stay_where_it_leaves_data() {
            const finger = touchEvent(root);
            return [{
                    "tag": "mouse",
                    "press": x => mousePress(stars(), x, 20),
                    "move": (x, y) => mouseMove(stars(), x, y),
                    "release": (x, y) => mouseRelease(stars(), x, y)
                }, {
                    "tag": "finger",
                    "press": x => finger.press(0, stars(), x, 20).commit(),
                    "move": (x, y) => finger.move(0, stars(), x, y).commit(),
                    "release": (x, y) => finger.release(0, stars(), x, y).commit()
                }];
        }

        function test_the_stars_follow_the_finger_and_stay_where_it_leaves(row) {
            row.press(star(2));
            compare(page.controller.rating, 2);
            for (const number of [3, 4, 5, 4]) {
                row.move(star(number), 20);
                compare(page.controller.rating, number);
            }
            row.move(star(1) - 200, 150);
            compare(page.controller.rating, 1, "no fewer than one, also beside the stars");
            row.move(star(5) + 200, -150);
            compare(page.controller.rating, 5);
            row.release(star(5) + 200, -150);
            compare(page.controller.rating, 5);
        }

        function test_keys_give_stars_and_nothing_is_sent_without_any() {
            const send = findChild(page, "sendRatingButton");
            verify(!send.enabled);
            for (const [key, rating] of [[Qt.Key_Left, 1], [Qt.Key_Right, 2], [Qt.Key_Up, 3], [Qt.Key_End, 5], [Qt.Key_Right, 5], [Qt.Key_Down, 4], [Qt.Key_Home, 1], [Qt.Key_4, 4]]) {
                keyClick(key);
                compare(page.controller.rating, rating);
            }
            verify(send.enabled);
            keyClick(Qt.Key_6);
            compare(page.controller.rating, 4);
        }
    }
}
