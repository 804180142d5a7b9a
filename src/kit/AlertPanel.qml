import QtQuick
import Wayloom.Screens as Screens

// Shows the alerts that wait in its presenter, one at a time, over everything else.
FocusScope {
    id: panel

    required property Screens.AlertPresenter presenter

    objectName: "alert"
    anchors.fill: parent
    visible: presenter.showing
    onVisibleChanged: if (visible) button.forceActiveFocus()
    Keys.onEscapePressed: presenter.dismiss()
    Keys.onBackPressed: presenter.dismiss()

    Rectangle {
        anchors.fill: parent
        color: FlatPalette.shade

        MouseArea {
            anchors.fill: parent
            onWheel: wheel => wheel.accepted = true
        }
    }

    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 48, 300)
        height: column.implicitHeight + 40
        radius: 6
        color: FlatPalette.surface
        Accessible.role: Accessible.AlertMessage
        Accessible.name: panel.presenter.title + " " + panel.presenter.message

        Column {
            id: column

            anchors.centerIn: parent
            width: parent.width - 40
            spacing: 12

            Text {
                visible: text.length > 0
                width: parent.width
                text: panel.presenter.title
                color: FlatPalette.text
                font.pixelSize: 17
                font.bold: true
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                textFormat: Text.PlainText
            }
            Text {
                objectName: "alertMessage"
                width: parent.width
                text: panel.presenter.message
                color: FlatPalette.text
                font.pixelSize: FlatPalette.bodySize
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                textFormat: Text.PlainText
            }
            FlatButton {
                id: button

                objectName: "alertButton"
                anchors.horizontalCenter: parent.horizontalCenter
                width: 120
                text: panel.presenter.button
                onClicked: panel.presenter.dismiss()
            }
        }
    }
}
