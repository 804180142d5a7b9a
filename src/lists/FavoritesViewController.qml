import QtQuick
import Wayloom.Kit
import Wayloom.Screens as Screens

// The favourites screen: a list of names under a title bar.
FocusScope {
    id: root

    required property Screens.FavoritesViewController controller

    focus: true

    Rectangle {
        anchors.fill: parent
        color: FlatPalette.surface
    }

    TitleBar {
        id: titleBar

        title: qsTranslate("Wayloom", "Favorites")

        TitleBarButton {
            id: backButton

            objectName: "backButton"
            anchors.left: parent.left
            text: qsTranslate("Wayloom", "Back")
            onClicked: root.controller.done()
        }
        TitleBarButton {
            id: editButton

            objectName: "editButton"
            anchors.right: parent.right
            text: root.controller.editTitle
            enabled: root.controller.editEnabled
            onClicked: root.controller.edit()
        }
    }

    FlatListView {
        id: mainTableView

        objectName: "mainTableView"
        anchors.fill: parent
        anchors.topMargin: titleBar.height
        bottomMargin: undoBar.shown ? undoBar.height : 0
        model: root.controller.favorites
        Accessible.name: titleBar.title

        Keys.onReturnPressed: root.controller.didSelectRow(currentIndex)
        Keys.onEnterPressed: root.controller.didSelectRow(currentIndex)
        Keys.onDeletePressed: root.controller.deleteRow(currentIndex)

        // qmllint disable unqualified
        delegate: FavoriteRow {
            width: ListView.view.width
            editing: root.controller.editing
            current: ListView.isCurrentItem && mainTableView.activeFocus
            onClicked: root.controller.didSelectRow(index)
            onDeleted: root.controller.deleteRow(index)
            ListView.onPooled: swipe.close()
        }
        // qmllint enable unqualified
        removeDisplaced: Transition { NumberAnimation { property: "y"; duration: 150 } }
        addDisplaced: Transition { NumberAnimation { property: "y"; duration: 150 } }
    }

    EmptyNote {
        objectName: "emptyNote"
        anchors.centerIn: mainTableView
        visible: mainTableView.count === 0
        text: qsTranslate("Wayloom", "No favorites yet")
        hint: qsTranslate("Wayloom", "Pick a place on the map and press “Add To →”.")
    }

    StatusLine {
        anchors.bottom: parent.bottom
        width: parent.width
        text: root.controller.statusText
    }

    UndoBar {
        id: undoBar

        anchors.bottom: parent.bottom
        shown: root.controller.undoShown
        deletedName: root.controller.deletedName
        onUndone: {
            root.controller.undoDelete()
            mainTableView.forceActiveFocus()
        }
    }
}
