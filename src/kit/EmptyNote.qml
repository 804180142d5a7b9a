import QtQuick

// What stands in place of a list that has no rows.
Column {
    id: note

    property alias text: label.text
    property alias hint: hintLabel.text

    width: Math.min(parent.width - 48, 300)
    spacing: FlatPalette.spacing

    Text {
        id: label

        width: parent.width
        color: FlatPalette.secondaryText
        font.pixelSize: FlatPalette.titleSize
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
    Text {
        id: hintLabel

        width: parent.width
        visible: text.length > 0
        color: FlatPalette.secondaryText
        font.pixelSize: FlatPalette.bodySize
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
}
