import QtQuick
import Tavi

// Words on a page, which assistive technology reads as they stand.
Text {
    font: Theme.book(16)
    color: Theme.label
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
