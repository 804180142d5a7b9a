import QtQuick
import Wayloom.Kit
import Wayloom.Screens as Screens

// The favourites screen: a list of names under a title bar.
FocusScope {
    id: root

    required property Screens.FavoritesViewController controller

    /// The row that has been moved aside.
    property Item openRow: null

    function closed(row: Item) {
        if (openRow === row)
            openRow = null
    }
    function isInName(x: real, y: real): bool {
        const row = mainTableView.itemAtIndex(controller.renamedRow)
        return row !== null && x > FlatPalette.rowHeight && x < width - FlatPalette.rowHeight
            && row.contains(mapToItem(row, x, y))
    }
    /// With Alt held, the current row moves; else the next one becomes the current one.
    function step(event: var, by: int) {
        event.accepted = controller.editing && (event.modifiers & Qt.AltModifier)
        if (!event.accepted)
            return
        controller.moveRow(mainTableView.currentIndex, mainTableView.currentIndex + by)
        // The current row goes with it before the next key comes.
        mainTableView.forceLayout()
    }

    focus: true

    Connections {
        target: root.controller
        function onRenamedRowChanged() {
            if (root.controller.renamedRow < 0)
                mainTableView.forceActiveFocus()
        }
    }

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
        anchors.top: titleBar.bottom
        anchors.bottom: fileBar.visible ? fileBar.top : parent.bottom
        width: parent.width
        bottomMargin: undoBar.shown ? undoBar.height - (fileBar.visible ? fileBar.height : 0) : 0
        model: root.controller.favorites
        Accessible.name: titleBar.title

        Keys.onReturnPressed: root.controller.didSelectRow(currentIndex)
        Keys.onEnterPressed: root.controller.didSelectRow(currentIndex)
        Keys.onDeletePressed: root.controller.deleteRow(currentIndex)
        Keys.onUpPressed: event => root.step(event, -1)
        Keys.onDownPressed: event => root.step(event, 1)

        // qmllint disable unqualified
        delegate: FavoriteRow {
            id: favoriteRow

            width: ListView.view.width
            z: index === sorter.dragged ? 1 : 0
            editing: root.controller.editing
            current: ListView.isCurrentItem && (mainTableView.activeFocus || index === sorter.dragged)
            // A row that is going has the index -1.
            renaming: index >= 0 && index === root.controller.renamedRow
            typedName: renaming ? root.controller.typedName : ""
            shift: sorter.shiftOf(index)
            shiftAnimated: sorter.dragged >= 0 && index !== sorter.dragged
            onClicked: root.controller.didSelectRow(index)
            onDeleted: {
                swipe.close()
                root.controller.deleteRow(index)
            }
            onTyped: name => root.controller.typedName = name
            onFinished: root.controller.commitName()
            onCancelled: root.controller.cancelName()
            onOpenChanged: {
                if (open)
                    root.openRow = favoriteRow
                else
                    root.closed(favoriteRow)
            }
            ListView.onPooled: {
                swipe.close()
                root.closed(favoriteRow)
            }
            Component.onDestruction: root.closed(favoriteRow)
        }
        // qmllint enable unqualified
        removeDisplaced: Transition { NumberAnimation { property: "y"; duration: 150 } }
        addDisplaced: Transition { NumberAnimation { property: "y"; duration: 150 } }

        DropArea {
            anchors.fill: parent
            keys: ["text/uri-list"]
            onDropped: drop => {
                if (!drop.hasUrls)
                    return
                drop.accept(Qt.CopyAction)
                root.controller.importFile(drop.urls[0])
            }

            Rectangle {
                anchors.fill: parent
                visible: parent.containsDrag
                color: "transparent"
                border.width: 3
                border.color: FlatPalette.turquoise
            }
        }
    }

    RowSorter {
        id: sorter

        objectName: "sorter"
        list: mainTableView
        anchors.right: parent.right
        // The bar at the side stays in reach.
        anchors.rightMargin: mainTableView.visibleArea.heightRatio < 1 ? 10 : 0
        anchors.top: mainTableView.top
        anchors.bottom: mainTableView.bottom
        width: FlatPalette.rowHeight
        visible: root.controller.editing && !root.openRow
        onMoved: (row, to) => root.controller.moveRow(row, to)
    }

    EmptyNote {
        objectName: "emptyNote"
        anchors.centerIn: mainTableView
        visible: mainTableView.count === 0
        text: qsTranslate("Wayloom", "No favorites yet")
        hint: qsTranslate("Wayloom", "Pick a place on the map and press “Add To →”.")
    }

    StatusLine {
        anchors.bottom: fileBar.visible ? fileBar.top : parent.bottom
        width: parent.width
        text: root.controller.statusText
        isFailure: root.controller.statusIsFailure
    }

    Rectangle {
        id: fileBar

        objectName: "fileBar"
        anchors.bottom: parent.bottom
        width: parent.width
        height: FlatPalette.rowHeight + 4
        visible: root.controller.editing || mainTableView.count === 0
        color: FlatPalette.surface

        Rectangle {
            width: parent.width
            height: 1
            color: FlatPalette.separator
        }
        Row {
            anchors.centerIn: parent
            spacing: FlatPalette.margin

            QuietButton {
                objectName: "importButton"
                text: qsTranslate("Wayloom", "Import…")
                onClicked: {
                    filePanel.exports = false
                    filePanel.open(root.controller.suggestedFile)
                }
            }
            QuietButton {
                objectName: "exportButton"
                text: qsTranslate("Wayloom", "Export…")
                enabled: mainTableView.count > 0
                onClicked: {
                    filePanel.exports = true
                    filePanel.open(root.controller.suggestedFile)
                }
            }
        }
    }

    UndoBar {
        id: undoBar

        anchors.bottom: parent.bottom
        shown: root.controller.undoShown
        text: root.controller.undoText
        onUndone: {
            root.controller.undo()
            mainTableView.forceActiveFocus()
        }
    }

    // While a row is open, or a name is typed, a touch elsewhere ends that first.
    MouseArea {
        anchors.fill: parent
        z: 2
        visible: root.openRow !== null || root.controller.renamedRow >= 0
        onPressed: mouse => {
            const open = root.openRow
            const within = open && open.contains(mapToItem(open, mouse.x, mouse.y))
            mouse.accepted = open !== null && !within
            if (mouse.accepted) {
                open.swipe.close()
            } else if (!open && !root.isInName(mouse.x, mouse.y)) {
                Qt.inputMethod.commit()
                root.controller.commitName()
            }
        }
    }

    FilePanel {
        id: filePanel

        property bool exports: false

        objectName: "filePanel"
        z: 3
        title: exports ? qsTranslate("Wayloom", "Export favorites to a file")
                       : qsTranslate("Wayloom", "Import favorites from a file")
        onAccepted: file => exports ? root.controller.exportFile(file) : root.controller.importFile(file)
        onClosed: mainTableView.forceActiveFocus()
    }
}
