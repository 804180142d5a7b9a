import QtQuick

// A button at one end of a title bar.
FlatButton {
    anchors.verticalCenter: parent.verticalCenter
    anchors.margins: FlatPalette.margin
    width: FlatPalette.barButtonWidth
    height: 32
    font.pixelSize: 15
}
