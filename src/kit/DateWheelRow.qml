import QtQuick

// One row of a date wheel.
Item {
    id: row

    property string text: ""
    property bool isChosen: false

    signal clicked()

    Text {
        anchors.centerIn: parent
        width: parent.width
        text: row.text
        color: row.isChosen ? FlatPalette.text : FlatPalette.secondaryText
        opacity: row.isChosen ? 1 : 0.6
        font.pixelSize: row.isChosen ? 20 : 18
        horizontalAlignment: Text.AlignHCenter
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 12
        textFormat: Text.PlainText
    }
    TapHandler { onTapped: row.clicked() }
}
