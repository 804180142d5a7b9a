import QtQuick
import Wayloom.Kit
import Wayloom.Screens as Screens

// Asks for the name of a new favourite; fades in and out over the whole screen.
FocusScope {
    id: panel

    required property Screens.SpotloomViewController controller

    signal closed()

    anchors.fill: parent
    visible: opacity > 0
    opacity: naming ? 1 : 0
    enabled: naming
    Behavior on opacity { NumberAnimation { duration: 500 } }

    readonly property bool naming: controller.namingFavorite
    onNamingChanged: {
        if (naming) {
            favoritesNameField.forceActiveFocus()
            favoritesNameField.selectAll()
        } else {
            panel.closed()
        }
    }

    Keys.onEscapePressed: controller.cancelButtonClicked()
    Keys.onBackPressed: controller.cancelButtonClicked()

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
        // A little above the middle, so that a keyboard on the screen leaves it free.
        y: (parent.height - height) / 2 - 60
        width: Math.min(parent.width - 48, 320)
        height: column.implicitHeight + 40
        radius: 6
        color: FlatPalette.surface

        Column {
            id: column

            anchors.centerIn: parent
            width: parent.width - 40
            spacing: 14

            Text {
                id: alertTitleLabel

                objectName: "alertTitleLabel"
                width: parent.width
                text: qsTranslate("Wayloom", "Please Enter Favorites Name")
                color: FlatPalette.text
                font.pixelSize: 17
                font.bold: true
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
            FlatTextField {
                id: favoritesNameField

                objectName: "favoritesNameField"
                width: parent.width
                text: panel.controller.favoriteName
                onTextEdited: panel.controller.favoriteName = text
                onAccepted: panel.controller.okButtonClicked()
                Accessible.name: alertTitleLabel.text
            }
            Row {
                width: parent.width
                spacing: FlatPalette.spacing

                FlatButton {
                    id: cancelButton

                    objectName: "cancelButton"
                    width: (parent.width - parent.spacing) / 2
                    text: qsTranslate("Wayloom", "CANCEL")
                    onClicked: panel.controller.cancelButtonClicked()
                }
                FlatButton {
                    id: okButton

                    objectName: "okButton"
                    width: (parent.width - parent.spacing) / 2
                    text: qsTranslate("Wayloom", "OK")
                    onClicked: panel.controller.okButtonClicked()
                }
            }
        }
    }
}
