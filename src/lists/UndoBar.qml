import QtQuick
import Wayloom.Kit

// For a few seconds after a change: what was changed, and the way back.
Rectangle {
    id: bar

    property alias text: label.text
    property bool shown: false

    signal undone()

    width: parent.width
    height: 52
    visible: opacity > 0
    enabled: shown
    opacity: shown ? 1 : 0
    Behavior on opacity { NumberAnimation { duration: 150 } }
    color: FlatPalette.bar
    Accessible.role: Accessible.AlertMessage
    Accessible.name: label.text

    // Touches stop here.
    MouseArea {
        anchors.fill: parent
        onWheel: wheel => wheel.accepted = true
    }

    Text {
        id: label

        anchors.left: parent.left
        anchors.right: undoButton.left
        anchors.margins: FlatPalette.margin
        anchors.verticalCenter: parent.verticalCenter
        color: FlatPalette.clouds
        font.pixelSize: FlatPalette.bodySize
        elide: Text.ElideRight
        maximumLineCount: 1
        clip: true
        textFormat: Text.PlainText
    }
    FlatButton {
        id: undoButton

        objectName: "undoButton"
        anchors.right: parent.right
        anchors.rightMargin: FlatPalette.margin
        anchors.verticalCenter: parent.verticalCenter
        width: FlatPalette.barButtonWidth
        height: 32
        font.pixelSize: 15
        text: qsTranslate("Wayloom", "Undo")
        onClicked: bar.undone()
    }
}
