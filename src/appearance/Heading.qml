import QtQuick
import Tavi

// The heading of a page, a sheet or a part of one.
Label {
    font: Theme.heavy(18)
    Accessible.role: Accessible.Heading
}
