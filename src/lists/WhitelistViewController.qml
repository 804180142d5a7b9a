import QtQuick
import Wayloom.Kit
import Wayloom.Screens as Screens

// The whitelist screen: the installed applications under a title bar.
FocusScope {
    id: root

    required property Screens.WhitelistViewController controller

    focus: true

    Rectangle {
        anchors.fill: parent
        color: FlatPalette.surface
    }

    TitleBar {
        id: titleBar

        title: qsTranslate("Wayloom", "White List")

        TitleBarButton {
            id: backButton

            objectName: "backButton"
            anchors.left: parent.left
            text: qsTranslate("Wayloom", "Done")
            onClicked: root.controller.done()
        }
    }

    FlatListView {
        id: mainTableView

        objectName: "mainTableView"
        anchors.fill: parent
        anchors.topMargin: titleBar.height
        model: root.controller.appArray
        Accessible.name: titleBar.title

        Keys.onSpacePressed: root.controller.didSelectRow(currentIndex)
        Keys.onReturnPressed: root.controller.didSelectRow(currentIndex)
        Keys.onEnterPressed: root.controller.didSelectRow(currentIndex)

        // qmllint disable unqualified
        delegate: WhitelistRow {
            width: ListView.view.width
            current: ListView.isCurrentItem && mainTableView.activeFocus
            onClicked: root.controller.didSelectRow(index)
        }
        // qmllint enable unqualified
    }

    StatusLine {
        anchors.bottom: parent.bottom
        width: parent.width
        text: root.controller.statusText
    }

    EmptyNote {
        objectName: "emptyNote"
        anchors.centerIn: mainTableView
        visible: mainTableView.count === 0
        text: qsTranslate("Wayloom", "No applications found")
        hint: qsTranslate("Wayloom", "Applications that are installed on this device appear here.")
    }
}
