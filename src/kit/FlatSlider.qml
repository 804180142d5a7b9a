import QtQuick
import QtQuick.Templates as T

// A flat slider. While it does not accept touches it still looks alive, only grey, and ignores
// pointer and keyboard.
T.Slider {
    id: control

    property color tint: FlatPalette.turquoise
    property bool acceptsTouches: true

    implicitHeight: 30
    implicitWidth: 160
    focusPolicy: acceptsTouches || activeFocus ? Qt.StrongFocus : Qt.NoFocus
    wheelEnabled: false
    // The keyboard may have been on it when it was locked.
    Keys.onLeftPressed: event => event.accepted = !acceptsTouches
    Keys.onRightPressed: event => event.accepted = !acceptsTouches

    background: Rectangle {
        x: control.leftPadding
        y: (control.height - height) / 2
        width: control.availableWidth
        height: 6
        radius: 3
        color: FlatPalette.separator

        Rectangle {
            width: control.visualPosition * parent.width
            height: parent.height
            radius: 3
            color: control.tint
        }
    }

    handle: Rectangle {
        x: control.leftPadding + control.visualPosition * (control.availableWidth - width)
        y: (control.height - height) / 2
        width: 22
        height: 22
        radius: 11
        color: control.tint
        border.color: FlatPalette.surface
        border.width: 3

        FocusRing {
            visible: control.visualFocus
            radius: height / 2
        }
    }

    MouseArea {
        anchors.fill: parent
        visible: !control.acceptsTouches
    }
}
