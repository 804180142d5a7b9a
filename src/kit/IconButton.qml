import QtQuick
import QtQuick.Templates as T

// A round-cornered square button with a picture, as it floats over a map.
T.Button {
    id: control

    property int cornerRadius: 8
    property color surfaceColor: FlatPalette.surface
    property bool raised: true

    implicitWidth: 44
    implicitHeight: 44
    focusPolicy: Qt.StrongFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        Text {
            anchors.centerIn: parent
            text: control.text
            color: FlatPalette.text
            font.pixelSize: 22
        }
        Image {
            anchors.centerIn: parent
            source: control.icon.source
            sourceSize.width: 24
            sourceSize.height: 24
        }
    }

    background: Item {
        Rectangle {
            visible: control.raised
            anchors.fill: parent
            anchors.topMargin: 2
            anchors.bottomMargin: -2
            radius: control.cornerRadius
            color: "#22000000"
        }
        Rectangle {
            anchors.fill: parent
            radius: control.cornerRadius
            color: control.down ? FlatPalette.pressed : control.surfaceColor
            border.color: control.raised ? "#14000000" : "transparent"
        }
        FocusRing {
            visible: control.visualFocus
            radius: control.cornerRadius + 2
        }
    }
}
