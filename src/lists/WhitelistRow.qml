import QtQuick
import QtQuick.Templates as T
import Wayloom.Kit

// One application: its icon, which may come a little later, its name, and a checkmark once ticked.
T.AbstractButton {
    id: row

    required property int index
    required property string appName
    required property url appIcon
    required property bool ticked
    property bool current: false

    readonly property real markSize: 22

    implicitHeight: FlatPalette.rowHeight
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.CheckBox
    Accessible.name: appName
    Accessible.checkable: true
    Accessible.checked: ticked
    Accessible.onPressAction: clicked()
    Accessible.onToggleAction: clicked()

    contentItem: Item {
        Image {
            objectName: "appIcon"
            x: 7
            y: 7
            width: 30
            height: 30
            source: row.appIcon
            sourceSize.width: width * Screen.devicePixelRatio
            sourceSize.height: height * Screen.devicePixelRatio
            fillMode: Image.PreserveAspectFit
            asynchronous: true
        }
        Text {
            anchors.left: parent.left
            anchors.leftMargin: 45
            anchors.right: parent.right
            anchors.rightMargin: FlatPalette.margin + row.markSize + FlatPalette.spacing
            height: parent.height
            text: row.appName
            color: FlatPalette.rowText
            font.pixelSize: FlatPalette.titleSize
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            maximumLineCount: 1
            textFormat: Text.PlainText
            // Marks piled on a letter reach into other rows.
            clip: true
        }
        Image {
            objectName: "checkmark"
            anchors.right: parent.right
            anchors.rightMargin: FlatPalette.margin
            anchors.verticalCenter: parent.verticalCenter
            visible: row.ticked
            source: "qrc:/icons/checkmark.svg"
            sourceSize.width: row.markSize
            sourceSize.height: row.markSize
        }
    }

    background: Rectangle {
        color: row.down || row.current ? FlatPalette.current : FlatPalette.surface

        Rectangle {
            anchors.bottom: parent.bottom
            x: 45
            width: parent.width - x
            height: 1
            color: FlatPalette.separator
        }
    }
}
