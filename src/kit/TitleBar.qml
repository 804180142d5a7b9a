import QtQuick

// The bar on top of a modal screen: a strip under the status bar, and a title between buttons that
// the screen places in it.
Item {
    id: bar

    property string title: ""
    default property alias buttons: titleTopLabel.data

    width: parent.width
    height: titleTopLabel.y + titleTopLabel.height
    // Rows scroll away under the bar.
    z: 1

    Rectangle {
        id: bgLabel

        objectName: "bgLabel"
        width: parent.width
        height: 20
        color: FlatPalette.surface
    }

    Rectangle {
        id: titleTopLabel

        objectName: "titleTopLabel"
        y: 20
        width: parent.width
        height: 48
        color: FlatPalette.surface

        Text {
            id: titleLabel

            objectName: "titleLabel"
            anchors.centerIn: parent
            width: parent.width - 2 * (FlatPalette.barButtonWidth + 2 * FlatPalette.margin)
            text: bar.title
            color: FlatPalette.text
            font.pixelSize: FlatPalette.titleSize
            font.bold: true
            horizontalAlignment: Text.AlignHCenter
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 11
            elide: Text.ElideRight
            textFormat: Text.PlainText
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: FlatPalette.separator
        }
    }
}
