import QtQuick
import QtQuick.Templates as T

// A single line of text on a soft background.
T.TextField {
    id: control

    implicitHeight: FlatPalette.controlHeight
    implicitWidth: 160
    leftPadding: 10
    rightPadding: 10
    verticalAlignment: TextInput.AlignVCenter
    font.pixelSize: FlatPalette.bodySize
    color: FlatPalette.text
    placeholderTextColor: FlatPalette.secondaryText
    selectionColor: FlatPalette.turquoise
    selectedTextColor: FlatPalette.surface
    selectByMouse: true
    maximumLength: 1000
    Accessible.name: placeholderText

    background: Rectangle {
        radius: FlatPalette.cornerRadius
        color: FlatPalette.field
        border.width: control.activeFocus ? 2 : 0
        border.color: FlatPalette.turquoise
    }

    Text {
        anchors.fill: parent
        anchors.leftMargin: control.leftPadding
        anchors.rightMargin: control.rightPadding
        visible: control.text.length === 0 && control.preeditText.length === 0
        text: control.placeholderText
        font: control.font
        color: control.placeholderTextColor
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
}
