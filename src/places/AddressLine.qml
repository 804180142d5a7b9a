import QtQuick
import Wayloom.Kit

// The address of the middle of a map, or a busy indicator while it is looked up.
Item {
    id: line

    property string text: ""
    property bool spinning: false

    height: 36

    Image {
        id: addressMark

        anchors.verticalCenter: parent.verticalCenter
        source: "qrc:/icons/place.svg"
        sourceSize.width: 16
        sourceSize.height: 16
    }
    Text {
        id: addressLabel

        objectName: "addressLabel"
        anchors.left: addressMark.right
        anchors.leftMargin: 6
        anchors.right: parent.right
        height: parent.height
        text: line.text
        color: FlatPalette.text
        font.pixelSize: FlatPalette.bodySize
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        textFormat: Text.PlainText
    }
    Spinner {
        id: spinner

        objectName: "spinner"
        anchors.verticalCenter: parent.verticalCenter
        anchors.left: addressLabel.left
        visible: line.spinning
    }
}
