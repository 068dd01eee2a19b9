import QtQuick

Rectangle {
    required property ViewController controller

    color: Theme.page
}
