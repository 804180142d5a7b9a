import QtQuick

// A busy indicator: twelve strokes whose brightness runs round while it is visible.
Item {
    id: spinner

    property color color: FlatPalette.secondaryText
    property int step: 0

    implicitWidth: 20
    implicitHeight: 20

    Timer {
        interval: 80
        repeat: true
        running: spinner.visible
        onTriggered: spinner.step = (spinner.step + 1) % 12
    }

    Repeater {
        model: 12

        Rectangle {
            required property int index

            x: (spinner.width - width) / 2
            width: Math.max(1.5, spinner.width / 11)
            height: spinner.height * 0.28
            radius: width / 2
            color: spinner.color
            opacity: 1 - ((spinner.step - index + 12) % 12) / 13
            transform: Rotation {
                origin.x: Math.max(1.5, spinner.width / 11) / 2
                origin.y: spinner.height / 2
                angle: index * 30
            }
        }
    }
}
