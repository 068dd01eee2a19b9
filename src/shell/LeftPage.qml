import QtQuick
import Tavi

// The side menu below its head; its table is empty yet.
Rectangle {
    required property ViewController controller

    color: Theme.brightYellow
}
