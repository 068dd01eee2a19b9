import QtQuick
import QtQuick.Templates as T

// What can be pressed: by finger, mouse, Space, Return and Enter, and by assistive technology. It shows nothing yet.
T.AbstractButton {
    id: control

    // What assistive technology is told, as the template writes over what is attached.
    property int accessibleRole: Accessible.Button
    property bool isCheckable: false
    property bool isChecked: false
    readonly property bool isHovered: pointer.hovered

    function press(event) {
        if (!event.isAutoRepeat)
            clicked();
    }

    // A finger hovers over nothing; the control's own hovering would stay on where it last touched.
    hoverEnabled: false
    Accessible.role: accessibleRole
    Accessible.name: text
    Keys.onReturnPressed: event => press(event)
    Keys.onEnterPressed: event => press(event)

    HoverHandler {
        id: pointer

        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    }
}
