import QtQuick

Rectangle {
    required property SolutionViewController controller

    color: Theme.page
}
