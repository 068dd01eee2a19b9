import QtQuick
import QtQuick.Templates as T
import QtTest

// What a finger, a mouse and a hardware keyboard do on the calculate page.
Item {
    id: root

    readonly property Item overlay: T.Overlay.overlay // Where menus are shown.

    width: 412
    height: 744

    TestCase {
        id: testCase

        property Item page

        name: "Calculate"
        when: windowShown

        function init() {
            page = stage.open(root);
            waitForNextTap();
        }

        function cleanup() {
            stage.close();
        }

        function item(name) {
            const found = findChild(page, name);
            verify(found, name);
            return found;
        }

        function tap(name, x, y) {
            const target = item(name);
            const finger = touchEvent(target);
            finger.press(0, target, x, y).commit();
            finger.release(0, target, x, y).commit();
        }

        // Two taps in quick succession would be a double tap.
        function waitForNextTap() {
            wait(Qt.styleHints.mouseDoubleClickInterval + 20);
        }

        function type(keys) {
            for (const key of keys)
                tap("key " + key);
        }

        function caret(name) {
            const field = item(name);
            return field.selectionStart === field.selectionEnd ? field.selectionStart : [field.selectionStart, field.selectionEnd];
        }

        function test_keypad_types_where_the_finger_was() {
            type("12");
            compare(item("baseField").text, "");
            tap("baseField");
            type("12/3");
            tap("exponentField");
            type("x-");
            compare(item("baseField").text, "12/3");
            compare(item("exponentField").text, "-x");
            tap("key Delete");
            compare(item("exponentField").text, "-");
            compare(caret("exponentField"), 1);
        }

        function test_tap_puts_the_caret() {
            tap("baseField");
            type("123456");
            waitForNextTap();
            tap("baseField", 13);
            compare(caret("baseField"), 0);
            type("9");
            compare(item("baseField").text, "9123456");
            compare(caret("baseField"), 1);
            waitForNextTap();
            tap("baseField", 200);
            compare(caret("baseField"), 7);
        }

        function test_double_click_selects_and_a_key_replaces() {
            tap("baseField");
            type("123");
            mouseDoubleClickSequence(item("baseField"), 20, 32);
            compare(caret("baseField"), [0, 3]);
            type("7");
            compare(item("baseField").text, "7");
            compare(item("radicandField").text, "7");
        }

        function test_minus_is_a_switch_that_is_off_at_the_start_of_a_signed_text() {
            tap("baseField");
            type("12-");
            compare(item("baseField").text, "-12");
            compare(caret("baseField"), 3);
            keyClick(Qt.Key_Home);
            compare(caret("baseField"), 0);
            compare(item("key -").enabled, false);
            type("-");
            keyClick(Qt.Key_Minus);
            compare(item("baseField").text, "-12");
            keyClick(Qt.Key_Right);
            compare(item("key -").enabled, true);
            type("-");
            compare(item("baseField").text, "12");
        }

        function test_segments_keep_the_texts_and_the_caret() {
            tap("exponentField");
            type("34");
            keyClick(Qt.Key_Left);
            tap("segment1");
            compare(item("modeAView").visible, false);
            compare(item("modeBView").visible, true);
            compare(item("indexField").text, "34");
            verify(item("indexField").activeFocus);
            type("5");
            tap("segment0");
            compare(item("exponentField").text, "354");
            compare(caret("exponentField"), 2);
        }

        function test_hardware_keys() {
            tap("baseField");
            for (const key of "1.5/2xp")
                keyClick(key);
            compare(item("baseField").text, "1.5/2xπ");
            keyClick("a");
            keyClick(Qt.Key_V, Qt.ControlModifier);
            compare(item("baseField").text, "1.5/2xπ");
            keyClick(Qt.Key_Backspace);
            compare(item("baseField").text, "1.5/2x");
            keyClick(Qt.Key_Delete);
            keyClick(Qt.Key_Home);
            keyClick(Qt.Key_Delete);
            compare(item("baseField").text, ".5/2x");
            keyClick(Qt.Key_Right, Qt.ShiftModifier);
            keyClick(Qt.Key_Right, Qt.ShiftModifier);
            keyClick(Qt.Key_Delete);
            compare(item("baseField").text, "/2x");
            compare(caret("baseField"), 0);
            keyClick("7");
            keyClick(Qt.Key_Tab);
            verify(item("exponentField").activeFocus);
            keyClick("3");
            compare(item("exponentField").text, "3");
            keyClick(Qt.Key_Tab, Qt.ShiftModifier);
            verify(item("baseField").activeFocus);
            keyClick(Qt.Key_Return);
            compare(stage.records, 1);
        }

        function test_calculate_tells_what_is_wrong_or_solves() {
            tap("baseField");
            type("2");
            tap("key Calculate");
            compare(stage.toasts.length, 1);
            compare(stage.records, 0);
            tap("exponentField");
            type("3");
            tap("key Calculate");
            compare(stage.toasts.length, 1);
            compare(stage.records, 1);
        }

        // The caret is drawn though the field takes no typing of its own, and only in the field typed into.
        function test_caret_is_drawn() {
            const color = String(item("baseField").style.caretColor);
            function caretPixels() {
                const field = item("baseField");
                const place = field.mapToItem(page, 0, field.height / 2);
                const image = grabImage(page);
                let count = 0;
                for (let x = 0; x < field.width; ++x)
                    count += String(image.pixel(place.x + x, place.y)) === color;
                return count;
            }
            compare(caretPixels(), 0);
            tap("baseField");
            compare(caretPixels(), 2);
            tap("exponentField");
            compare(caretPixels(), 0);
        }

        // A caret that blinked for ever would keep the processor awake.
        function test_caret_blinks_for_a_while() {
            const flashTime = Qt.styleHints.cursorFlashTime;
            stage.setCaretFlashTime(20);
            tap("baseField");
            const caret = findChild(item("baseField"), "caret");
            let beats = 0;
            const count = () => ++beats;
            caret.opacityChanged.connect(count);
            type("1"); // It begins anew, and every beat is counted.
            tryVerify(() => beats >= 19);
            wait(300);
            tryCompare(caret, "opacity", 1);
            const before = beats;
            wait(100);
            compare(beats, before);
            caret.opacityChanged.disconnect(count);
            stage.setCaretFlashTime(flashTime);
        }

        // The manual explains this keypad, so its drawing has the same keys in the same places.
        function test_the_manual_draws_the_keys_as_they_are() {
            const drawn = stage.drawing("qrx_info").match(/font-size="18"[^>]*>.</g).map(key => key.slice(-2, -1).replace("\u2212", "-"));
            const keys = Array.from("0123456789./-πxyz").map(key => {
                    const place = item("key " + key).mapToItem(page, 0, 0);
                    return {
                        "key": key,
                        "order": place.y * page.width + place.x
                    };
                });
            compare(drawn.join(""), keys.sort((a, b) => a.order - b.order).map(key => key.key).join(""));
        }

        // Where everything stands that can be touched or read.
        function places(mode) {
            const fields = mode === "segment0" ? ["baseField", "exponentField"] : ["indexField", "radicandField"];
            const names = ["fillInLabel", "segment0", "segment1", "manualButton", ...fields, "key Delete", "key Calculate", ...Array.from("0123456789./-πxyz", key => "key " + key)];
            return names.map(name => {
                    const target = item(name);
                    return {
                        "name": name,
                        "place": target.mapToItem(page, 0, 0, target.width, target.height)
                    };
                });
        }

        // Pages of windows from 320 x 480 and 568 x 320 on, one after the other and back again.
        function test_nothing_is_cut_or_overlaps_in_any_window_data() {
            return [{
                    "tag": "segment0"
                }, {
                    "tag": "segment1"
                }];
        }

        function test_nothing_is_cut_or_overlaps_in_any_window(row) {
            const sizes = [[320, 400], [412, 742], [568, 240], [360, 512], [800, 280], [2560, 1312], [540, 300], [1280, 672], [539, 500]];
            const seen = {};
            tap(row.tag);
            for (const [width, height] of [...sizes, ...sizes.reverse()]) {
                page.width = width;
                page.height = height;
                const all = places(row.tag);
                const isLow = height < 500;
                for (let index = 0; index < all.length; ++index) {
                    const name = all[index].name;
                    const place = all[index].place;
                    const what = `${name} ${place} in ${width}x${height}`;
                    verify(place.x >= 0 && place.y >= 0 && place.right <= width && place.bottom <= height, what);
                    verify(name === "fillInLabel" || (place.width >= (isLow ? 40 : 48) && place.height >= (isLow ? 40 : 48)), what);
                    for (const other of all.slice(0, index))
                        verify(place.right <= other.place.x || other.place.right <= place.x || place.bottom <= other.place.y || other.place.bottom <= place.y, `${what} over ${other.name} ${other.place}`);
                }
                const now = JSON.stringify(all);
                compare(now, seen[[width, height]] ?? now);
                seen[[width, height]] = now;
            }
        }

        // In a window that is too low for all of it the field typed into is brought into sight, and growing undoes that.
        function test_page_scrolls_only_where_it_must() {
            page.height = 300;
            page.width = 320;
            tap("baseField");
            const flickable = item("flickable");
            verify(flickable.contentY > 0 || item("baseField").mapToItem(page, 0, 64).y <= 300);
            flickable.contentY = flickable.contentHeight - flickable.height;
            page.height = 744;
            page.width = 412;
            compare(flickable.contentY, 0);
            compare(flickable.interactive, false);
        }

        function focused() {
            let found = root.Window.activeFocusItem;
            while (found && found.objectName === "")
                found = found.parent;
            return found ? found.objectName : "";
        }

        function test_tab_reaches_every_control_once_round() {
            tap("baseField");
            const round = [];
            do {
                round.push(focused());
                keyClick(Qt.Key_Tab);
            } while (focused() !== "baseField" && round.length < 20)
            compare(round, ["baseField", "exponentField", "key Calculate", "segment0", "segment1", "manualButton"]);
            keyClick(Qt.Key_Tab, Qt.ShiftModifier);
            compare(focused(), "manualButton");
        }

        function test_return_switches_the_mode_from_its_segment() {
            item("segment1").forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Return);
            compare(item("modeSwitch").selectedSegmentIndex, 1);
            compare(stage.toasts, []);
            keyClick(Qt.Key_Return);
            compare(stage.toasts, []);
        }

        function isOn(keys) {
            return keys.every(key => item("key " + key).enabled);
        }

        function test_keys_that_would_do_nothing_are_off() {
            verify(!isOn(["1"]) && !isOn(["Delete"]) && !isOn(["-"]) && isOn(["Calculate"]));
            verify(item("baseField").isInviting && !item("exponentField").isInviting);
            compare(item("hint").text, "hintTapField");
            keyClick("4");
            compare(item("baseField").text, "4");
            verify(isOn(["1", "Delete", "-", "Calculate"]));
            verify(!item("baseField").isInviting);
            tap("exponentField");
            verify(isOn(["1", "-"]) && !isOn(["Delete"]));
        }

        function test_preview_follows_each_key() {
            tap("baseField");
            type("3");
            verify(item("formula").latex.startsWith("3^"));
            compare(item("hint").text, "hintExponent");
            tap("exponentField");
            type("2/");
            compare(item("hint").text, "hintFraction");
            type("5");
            compare(item("formula").latex, "3^{\\frac{2}{5}}");
            compare(item("hint").visible, false);
            tap("segment1");
            compare(item("formula").latex, "\\sqrt[\\frac{2}{5}]{3}");
            tryCompare(item("preview").Accessible, "name", item("formula").spokenText);
        }

        // In a low window the formula gives way to the words.
        function test_preview_stands_clear_of_the_fields_data() {
            return [{
                    "tag": "360x640",
                    "size": [360, 512]
                }, {
                    "tag": "800x360",
                    "size": [800, 280]
                }, {
                    "tag": "1280x800",
                    "size": [1280, 672]
                }];
        }

        function test_preview_stands_clear_of_the_fields(row) {
            page.width = row.size[0];
            page.height = row.size[1];
            tap("baseField");
            type("3/2");
            const place = item("preview").mapToItem(page, 0, 0, item("preview").width, item("preview").height);
            for (const name of ["segment1", "manualButton", "baseField", "exponentField", "key x", "key Delete"]) {
                const other = item(name).mapToItem(page, 0, 0, item(name).width, item(name).height);
                verify(place.right <= other.x || other.right <= place.x || place.bottom <= other.y || other.bottom <= place.y, name + " " + place + " " + other);
            }
            verify(item("hint").visible);
            tap("exponentField");
            type("2");
            const formula = item("formula");
            verify(formula.fontSize >= 14 && formula.implicitHeight <= formula.parent.parent.height);
        }

        function test_words_stand_until_the_field_is_changed() {
            tap("baseField");
            type("1/0");
            tap("exponentField");
            type("2");
            tap("key Calculate");
            verify(item("baseField").activeFocus);
            compare(item("hint").text, "inputZeroInDenominator");
            type("5");
            compare(item("hint").visible, false);
        }

        function test_wide_text_scrolls_with_the_caret_and_fades() {
            const edges = () => ["leftEdge", "rightEdge"].filter(name => findChild(item("baseField"), name).visible);
            tap("baseField");
            tryVerify(() => String(edges()) === String([]));
            type("12345678901234567890123456");
            tryVerify(() => String(edges()) === String(["leftEdge"]));
            keyClick(Qt.Key_Home);
            tryVerify(() => String(edges()) === String(["rightEdge"]));
            for (let i = 0; i < 20; ++i)
                keyClick(Qt.Key_Right);
            waitForNextTap();
            tap("baseField", 5);
            verify(caret("baseField") > 0 && caret("baseField") < 20);
            tryVerify(() => String(edges()) === String(["leftEdge", "rightEdge"]));
        }

        function menuEntry(name) {
            let found = null;
            tryVerify(() => {
                    found = findChild(root.overlay, name);
                    return found && found.visible;
                });
            return found;
        }

        function test_menu_of_a_field() {
            tap("baseField");
            type("123");
            mouseClick(item("baseField"), 40, 30, Qt.RightButton);
            verify(!menuEntry("copy").enabled);
            mouseClick(menuEntry("selectAll"));
            compare(caret("baseField"), [0, 3]);
            keyClick(Qt.Key_Menu);
            mouseClick(menuEntry("cut"));
            compare(item("baseField").text, "");
            const target = item("exponentField");
            const finger = touchEvent(target);
            finger.press(0, target, 20, 20).commit();
            const paste = menuEntry("paste");
            finger.release(0, target, 20, 20).commit();
            mouseClick(paste);
            compare(item("exponentField").text, "123");
            compare(item("baseField").text, "");
        }
    }
}
