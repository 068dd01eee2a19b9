import QtQuick
import Tavi

Rectangle {
    required property SolutionViewController controller

    color: Theme.page
}
