import QtQuick
import QtQuick.Templates as T
import Wayloom.Kit

// One choice of a drive: its caption and what was chosen. A touch anywhere on the row is one on the
// value.
T.AbstractButton {
    id: row

    required property string caption
    required property string value
    required property string captionName
    required property string valueName

    height: FlatPalette.rowHeight
    focusPolicy: Qt.StrongFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.role: Accessible.Button
    Accessible.name: caption + ", " + value

    background: Rectangle {
        color: row.down ? FlatPalette.current : FlatPalette.surface

        Rectangle {
            anchors.bottom: parent.bottom
            anchors.left: parent.left
            anchors.leftMargin: FlatPalette.margin
            anchors.right: parent.right
            height: 1
            color: FlatPalette.separator
        }
        FocusRing {
            visible: row.visualFocus
            anchors.margins: 2
            radius: FlatPalette.cornerRadius
        }
    }

    contentItem: Item {
        Text {
            objectName: row.captionName
            x: FlatPalette.margin
            width: 88
            height: parent.height
            text: row.caption
            color: FlatPalette.secondaryText
            font.pixelSize: FlatPalette.bodySize
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 10
            verticalAlignment: Text.AlignVCenter
        }
        Text {
            objectName: row.valueName
            x: FlatPalette.margin + 88 + FlatPalette.spacing
            width: parent.width - x - FlatPalette.margin
            height: parent.height
            text: row.value
            color: FlatPalette.text
            font.pixelSize: FlatPalette.bodySize
            horizontalAlignment: Text.AlignRight
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 12
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }
    }
}
