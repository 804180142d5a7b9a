import QtQuick
import QtQuick.Templates as T

// A list of rows, used by touch, wheel and keys. Which row is the current one only the keys decide.
ListView {
    id: list

    function go(row: int) {
        if (count > 0)
            currentIndex = Math.max(0, Math.min(row, count - 1))
    }

    readonly property int rowsPerPage: Math.max(1, Math.floor(height / FlatPalette.rowHeight) - 1)

    clip: true
    focus: true
    activeFocusOnTab: true
    reuseItems: true
    currentIndex: -1
    highlightMoveDuration: 0
    boundsBehavior: Flickable.StopAtBounds
    Accessible.role: Accessible.List
    T.ScrollBar.vertical: FlatScrollBar {}

    Keys.onPressed: event => {
        switch (event.key) {
        case Qt.Key_Home: go(0); break
        case Qt.Key_End: go(count - 1); break
        case Qt.Key_PageUp: go(currentIndex - rowsPerPage); break
        case Qt.Key_PageDown: go(currentIndex + rowsPerPage); break
        default: return
        }
        event.accepted = true
    }
}
