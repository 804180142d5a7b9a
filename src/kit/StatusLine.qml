import QtQuick

// One quiet line below what a screen says of itself, with a thin bar for something that goes on;
// there only while it has something to say.
Rectangle {
    id: line

    property string text: ""
    property bool isFailure: true
    /// 0 to 1; negative for none.
    property real progress: -1

    objectName: "statusLine"
    height: 28
    visible: text.length > 0
    color: FlatPalette.surface
    Accessible.role: Accessible.Notification
    Accessible.name: text

    Text {
        anchors.fill: parent
        anchors.leftMargin: FlatPalette.margin
        anchors.rightMargin: FlatPalette.margin
        text: line.text
        color: line.isFailure ? FlatPalette.text : FlatPalette.secondaryText
        font.pixelSize: FlatPalette.captionSize
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: FlatPalette.smallSize
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        elide: line.isFailure ? Text.ElideMiddle : Text.ElideRight
        maximumLineCount: 1
        textFormat: Text.PlainText
    }
    Rectangle {
        anchors.top: parent.bottom
        width: parent.width
        height: 1
        color: FlatPalette.separator
    }
    Rectangle {
        objectName: "statusProgress"
        anchors.bottom: parent.bottom
        visible: line.progress >= 0
        width: parent.width * Math.min(line.progress, 1)
        height: 2
        color: FlatPalette.turquoise
    }
}
