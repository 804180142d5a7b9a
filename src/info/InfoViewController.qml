import QtQuick
import Wayloom.Kit
import Wayloom.Screens as Screens

// The information screen: name and version in the title bar, large buttons in the middle.
FocusScope {
    id: root

    required property Screens.InfoViewController controller

    objectName: "InfoViewController"
    focus: true

    component LargeButton: FlatButton {
        width: parent.width
        height: 60
        shadowHeight: 4
        font.pixelSize: 24
        font.bold: true
    }

    Rectangle {
        anchors.fill: parent
        color: FlatPalette.surface
    }

    TitleBar {
        id: titleBar

        title: root.controller.title

        TitleBarButton {
            id: backButton

            objectName: "backButton"
            anchors.left: parent.left
            focus: true
            text: qsTranslate("Wayloom", "Back")
            onClicked: root.controller.done()
        }
    }

    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        y: titleBar.height + (parent.height - titleBar.height - height) / 2
        width: Math.min(parent.width - 4 * FlatPalette.margin, 320)
        spacing: 2 * FlatPalette.margin

        LargeButton {
            id: wihteListButton

            objectName: "wihteListButton"
            text: qsTranslate("Wayloom", "White List")
            onClicked: root.controller.wihteList()
        }
        LargeButton {
            id: contactButton

            objectName: "contactButton"
            text: qsTranslate("Wayloom", "Contact Author")
            onClicked: root.controller.contactTheAuthor()
        }
        LargeButton {
            id: visitButton

            objectName: "visitButton"
            text: qsTranslate("Wayloom", "Visit Quorvil")
            onClicked: root.controller.visitQuorvil()
        }
    }
}
