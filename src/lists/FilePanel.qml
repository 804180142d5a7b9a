import QtQuick
import Wayloom.Kit

// Asks for the path of a file.
FocusScope {
    id: panel

    property alias title: label.text
    property bool shown: false

    signal accepted(file: string)

    function open(file: string) {
        field.text = file
        shown = true
        field.forceActiveFocus()
        field.selectAll()
    }
    function finish() {
        const file = field.text
        shown = false
        if (file.trim().length > 0)
            accepted(file)
    }

    signal closed()

    anchors.fill: parent
    visible: shown
    onShownChanged: if (!shown) closed()
    Keys.onEscapePressed: shown = false
    Keys.onBackPressed: shown = false

    Rectangle {
        anchors.fill: parent
        color: FlatPalette.shade

        MouseArea {
            anchors.fill: parent
            onWheel: wheel => wheel.accepted = true
        }
    }

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        y: (parent.height - height) / 2 - 60
        width: Math.min(parent.width - 24, 480)
        height: column.implicitHeight + 40
        radius: 6
        color: FlatPalette.surface

        Column {
            id: column

            anchors.centerIn: parent
            width: parent.width - 40
            spacing: 14

            Text {
                id: label

                width: parent.width
                color: FlatPalette.text
                font.pixelSize: FlatPalette.titleSize
                font.bold: true
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
            FlatTextField {
                id: field

                objectName: "fileField"
                width: parent.width
                height: FlatPalette.rowHeight
                onAccepted: panel.finish()
                Accessible.name: label.text
            }
            Text {
                width: parent.width
                text: ".gpx  .kml  .geojson"
                color: FlatPalette.secondaryText
                font.pixelSize: FlatPalette.captionSize
                horizontalAlignment: Text.AlignHCenter
            }
            Row {
                width: parent.width
                spacing: FlatPalette.spacing

                FlatButton {
                    objectName: "fileCancelButton"
                    width: (parent.width - parent.spacing) / 2
                    height: FlatPalette.rowHeight
                    text: qsTranslate("Wayloom", "CANCEL")
                    onClicked: panel.shown = false
                }
                FlatButton {
                    objectName: "fileOkButton"
                    width: (parent.width - parent.spacing) / 2
                    height: FlatPalette.rowHeight
                    text: qsTranslate("Wayloom", "OK")
                    onClicked: panel.finish()
                }
            }
        }
    }
}
