import QtQuick
import Tavi

Rectangle {
    required property ViewController controller

    color: Theme.page
}
