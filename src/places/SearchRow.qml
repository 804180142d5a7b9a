import QtQuick
import QtQuick.Templates as T
import Wayloom.Kit

// One thing that a search field offers: what it is called, what and where it is, how far away.
T.AbstractButton {
    id: row

    required property int index
    required property string title
    required property string detail
    required property string distance
    required property bool removable
    property bool current: false

    signal removed()

    implicitHeight: FlatPalette.rowHeight
    focusPolicy: Qt.NoFocus
    leftPadding: FlatPalette.margin
    rightPadding: removable ? 0 : FlatPalette.margin
    Accessible.role: Accessible.ListItem
    Accessible.name: [title, detail, distance].filter(text => text.length > 0).join(", ")
    Accessible.onPressAction: clicked()

    contentItem: Item {
        Text {
            id: titleText

            anchors.left: parent.left
            anchors.right: distanceText.left
            anchors.rightMargin: FlatPalette.spacing
            y: row.detail.length > 0 ? 5 : (parent.height - height) / 2
            text: row.title
            color: FlatPalette.text
            font.pixelSize: FlatPalette.bodySize
            elide: Text.ElideRight
            maximumLineCount: 1
            textFormat: Text.PlainText
        }
        Text {
            anchors.left: parent.left
            anchors.right: titleText.right
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 5
            text: row.detail
            color: FlatPalette.secondaryText
            font.pixelSize: FlatPalette.captionSize
            elide: Text.ElideRight
            maximumLineCount: 1
            textFormat: Text.PlainText
        }
        Text {
            id: distanceText

            anchors.right: removeButton.left
            anchors.verticalCenter: parent.verticalCenter
            text: row.distance
            color: FlatPalette.secondaryText
            font.pixelSize: FlatPalette.captionSize
        }
        T.AbstractButton {
            id: removeButton

            objectName: "removeSearch"
            anchors.right: parent.right
            width: row.removable ? height : 0
            height: parent.height
            visible: row.removable
            focusPolicy: Qt.NoFocus
            onClicked: row.removed()
            Accessible.name: qsTranslate("Wayloom", "Forget") + " " + row.title
            contentItem: Text {
                text: "×"
                color: FlatPalette.secondaryText
                font.pixelSize: FlatPalette.titleSize
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
        }
    }

    background: Rectangle {
        color: row.down || row.current ? FlatPalette.current : FlatPalette.surface

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: FlatPalette.separator
        }
    }
}
