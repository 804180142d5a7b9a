import QtQuick

// One quiet line below what a screen says of itself; there only while it has something to say.
Rectangle {
    id: line

    property string text: ""

    objectName: "statusLine"
    height: 28
    visible: text.length > 0
    color: FlatPalette.surface
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Text {
        anchors.fill: parent
        anchors.leftMargin: FlatPalette.margin
        anchors.rightMargin: FlatPalette.margin
        text: line.text
        color: FlatPalette.text
        font.pixelSize: FlatPalette.captionSize
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideMiddle
        maximumLineCount: 1
        textFormat: Text.PlainText
    }
    Rectangle {
        anchors.top: parent.bottom
        width: parent.width
        height: 1
        color: FlatPalette.separator
    }
}
