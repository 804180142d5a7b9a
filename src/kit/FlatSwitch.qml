import QtQuick
import QtQuick.Templates as T

// A flat on/off switch. It reports a turn with `toggled`; what it shows is bound by its screen.
T.Switch {
    id: control

    property color onColor: FlatPalette.turquoise
    property color offColor: FlatPalette.clouds
    property color onBackgroundColor: FlatPalette.switchGround
    property color offBackgroundColor: FlatPalette.switchGroundOff

    implicitWidth: 60
    implicitHeight: 30
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.CheckBox

    indicator: Rectangle {
        width: control.width
        height: control.height
        radius: height / 2
        color: control.checked ? control.onBackgroundColor : control.offBackgroundColor
        Behavior on color { ColorAnimation { duration: 120 } }

        Rectangle {
            x: 3 + control.visualPosition * (parent.width - width - 6)
            y: 3
            width: height
            height: parent.height - 6
            radius: height / 2
            color: control.checked ? control.onColor : control.offColor
            Behavior on x { NumberAnimation { duration: 120; easing.type: Easing.OutQuad } }
        }

        FocusRing {
            visible: control.visualFocus
            radius: height / 2
        }
    }
}
