import QtQuick
import QtQuick.Templates as T

// A slim bar at the side of a long list, to see and to drag.
T.ScrollBar {
    id: control

    implicitWidth: 10
    minimumSize: 0.06
    padding: 2
    visible: size < 1
    contentItem: Rectangle {
        implicitWidth: 6
        radius: 3
        color: control.pressed ? FlatPalette.concrete : FlatPalette.silver
        opacity: control.active ? 1 : 0.5
    }
}
