import QtQuick

// A transient note in the middle of what it covers: a busy indicator, a short text, or both. It
// never takes touches, so whatever lies under it stays usable.
Item {
    id: overlay

    property bool shown: false
    property string labelText: ""
    property bool textOnly: false
    property int margin: 20
    property real yOffset: 0

    visible: opacity > 0
    opacity: shown ? 1 : 0
    Behavior on opacity { NumberAnimation { duration: 200 } }

    Rectangle {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: overlay.yOffset
        width: Math.min(parent.width - 40, column.implicitWidth + 2 * overlay.margin)
        height: column.implicitHeight + 2 * overlay.margin
        radius: 10
        color: "#d92c3e50"

        Column {
            id: column

            anchors.centerIn: parent
            spacing: 10

            Spinner {
                visible: !overlay.textOnly && overlay.visible
                anchors.horizontalCenter: parent.horizontalCenter
                width: 36
                height: 36
                light: true
            }

            Text {
                visible: overlay.labelText.length > 0
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(implicitWidth, overlay.width - 40 - 2 * overlay.margin)
                text: overlay.labelText
                color: FlatPalette.clouds
                font.pixelSize: FlatPalette.bodySize
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                textFormat: Text.PlainText
            }
        }
    }
}
