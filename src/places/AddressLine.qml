import QtQuick
import QtQuick.Templates as T
import Wayloom.Kit

// The address of the middle of a map over its coordinates, or a busy indicator while it is looked
// up. A touch asks for a copy of the coordinates.
T.AbstractButton {
    id: line

    property string address: ""
    property string coordinates: ""
    property bool spinning: false

    objectName: "addressLine"
    height: 36
    focusPolicy: Qt.TabFocus
    leftInset: -4
    rightInset: -4
    enabled: coordinates.length > 0
    Accessible.name: qsTranslate("Wayloom", "Copy coordinates") + " " + coordinates
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
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
            height: coordinatesLabel.text.length > 0 ? 21 : parent.height
            text: line.address
            color: FlatPalette.text
            font.pixelSize: FlatPalette.bodySize
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }
        Text {
            id: coordinatesLabel

            objectName: "coordinatesLabel"
            anchors.left: addressLabel.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 2
            text: line.coordinates
            color: FlatPalette.secondaryText
            font.pixelSize: FlatPalette.captionSize
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }
        Spinner {
            objectName: "spinner"
            anchors.verticalCenter: parent.verticalCenter
            anchors.left: addressLabel.left
            visible: line.spinning
        }
    }
    background: Rectangle {
        radius: FlatPalette.cornerRadius
        color: line.down ? FlatPalette.pressed : "transparent"

        FocusRing { visible: line.visualFocus }
    }
}
