import QtQuick
import Wayloom.Kit
import Wayloom.Screens as Screens

// What a search field offers, in a list below it while the field or the list has the keyboard. Down
// goes from the field into the list, Up from its first row back.
Rectangle {
    id: panel

    required property Screens.SearchList searches
    required property Item field
    /// How far the list may reach.
    property real maximumHeight: 8 * FlatPalette.rowHeight

    signal chosen(int row)
    signal escaped()

    function enter() {
        if (!visible)
            return
        rows.currentIndex = 0
        rows.forceActiveFocus()
    }

    objectName: "searchList"
    height: Math.min(rows.contentHeight, maximumHeight) + 2
    visible: rows.count > 0 && (field.activeFocus || rows.activeFocus)
    color: FlatPalette.surface
    border.color: FlatPalette.separator

    // What lies below gets no touches through the gaps.
    MouseArea {
        anchors.fill: parent
        onWheel: wheel => wheel.accepted = true
    }

    FlatListView {
        id: rows

        objectName: "searchRows"
        anchors.fill: parent
        anchors.margins: 1
        model: panel.searches
        Accessible.name: qsTranslate("Wayloom", "Suggestions")
        activeFocusOnTab: false

        function choose(row: int) {
            panel.field.forceActiveFocus()
            panel.chosen(row)
        }
        function remove(row: int) {
            panel.field.forceActiveFocus()
            panel.searches.remove(row)
        }

        Keys.onUpPressed: event => {
            event.accepted = currentIndex <= 0
            if (event.accepted)
                panel.field.forceActiveFocus()
        }
        Keys.onReturnPressed: choose(currentIndex)
        Keys.onEnterPressed: choose(currentIndex)
        Keys.onDeletePressed: remove(currentIndex)
        Keys.onEscapePressed: panel.escaped()

        // qmllint disable unqualified
        delegate: SearchRow {
            width: ListView.view.width
            current: ListView.isCurrentItem && rows.activeFocus
            onClicked: rows.choose(index)
            onRemoved: rows.remove(index)
        }
        // qmllint enable unqualified
    }
}
