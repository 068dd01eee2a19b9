import QtQuick
import QtTest

// The history on a screen, and what hands do to it. Each test opens it with its own tasks.
TestCase {
    required property Item screen

    when: windowShown

    function cleanup() {
        stage.close();
    }

    function open(tasks) {
        stage.open(screen, tasks);
        waitForRendering(screen);
    }

    function find(name) {
        return findChild(screen.Window.contentItem, name);
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
        const start = target.mapToItem(screen, x, y);
        finger.press(0, screen, start.x, start.y).commit();
        for (let step = 1; step <= 10; ++step) {
            wait(10);
            finger.move(0, screen, start.x + dx * step / 10, start.y + dy * step / 10).commit();
        }
        wait(100);
        finger.release(0, screen, start.x + dx, start.y + dy).commit();
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

    function focusTable() {
        for (let i = 0; i < 10 && !table().activeFocus; ++i)
            keyClick(Qt.Key_Tab);
        verify(table().activeFocus);
    }

    function shows(name) {
        const found = find(name);
        return found !== null && found.visible;
    }
}
