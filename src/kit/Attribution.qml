import QtQuick

// Who the map's data comes from, small but readable over any ground.
Rectangle {
    id: attribution

    property string text: ""
    property real maximumWidth: 200

    visible: text.length > 0
    width: Math.min(label.implicitWidth + 10, maximumWidth)
    height: label.implicitHeight + 4
    radius: 3
    color: FlatPalette.veil

    Text {
        id: label

        anchors.centerIn: parent
        width: Math.min(implicitWidth, attribution.maximumWidth - 10)
        text: attribution.text
        color: FlatPalette.secondaryText
        font.pixelSize: FlatPalette.smallSize
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        textFormat: Text.PlainText
    }
}
