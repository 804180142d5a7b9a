import QtQuick

// A button at one end of a title bar.
FlatButton {
    anchors.verticalCenter: parent.verticalCenter
    anchors.margins: FlatPalette.margin
    width: Math.max(FlatPalette.barButtonWidth, implicitWidth)
    leftPadding: 10
    rightPadding: 10
    height: 32
    font.pixelSize: 15
}
