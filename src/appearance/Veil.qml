import QtQuick

// Darkens what lies under a menu, a sheet or a message.
Rectangle {
    color: Qt.rgba(0, 0, 0, 0.5)
}
