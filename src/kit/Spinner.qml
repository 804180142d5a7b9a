import QtQuick

// A busy indicator: strokes whose brightness runs round while it is visible.
Image {
    id: spinner

    property bool light: false

    width: 20
    height: 20
    source: light ? "qrc:/icons/spinner-light.svg" : "qrc:/icons/spinner.svg"
    sourceSize.width: 36
    sourceSize.height: 36

    Timer {
        interval: 80
        repeat: true
        running: spinner.visible
        onTriggered: spinner.rotation = (spinner.rotation + 30) % 360
    }
}
