import QtQuick
import Wayloom.Kit

// Lies over the grips of a list's rows and moves the one that is dragged. Nothing but pictures move
// until it is let go.
MouseArea {
    id: sorter

    required property ListView list
    /// The row under way, and the place that it would have; -1 for none.
    property int dragged: -1
    property int target: -1
    /// How far it is from where it was.
    property real offset: 0
    property real grip: 0

    signal moved(row: int, to: int)

    readonly property real restingY: dragged * FlatPalette.rowHeight

    /// How far a row steps aside.
    function shiftOf(row: int): real {
        if (dragged < 0)
            return 0
        if (row === dragged)
            return offset
        if (row > dragged && row <= target)
            return -FlatPalette.rowHeight
        return row < dragged && row >= target ? FlatPalette.rowHeight : 0
    }

    function follow() {
        const last = list.count - 1
        const y = list.contentY - list.originY + mouseY - grip
        const held = Math.max(0, Math.min(y, last * FlatPalette.rowHeight))
        offset = held - restingY
        target = Math.round(held / FlatPalette.rowHeight)
    }

    function drop(moves: bool) {
        const row = dragged
        const to = target
        dragged = -1
        target = -1
        if (moves && row >= 0 && row !== to)
            moved(row, to)
    }

    preventStealing: true
    cursorShape: dragged < 0 ? Qt.OpenHandCursor : Qt.ClosedHandCursor
    onPressed: mouse => {
        const row = list.indexAt(1, list.contentY + mouse.y)
        mouse.accepted = row >= 0
        if (row < 0)
            return
        grip = list.contentY - list.originY + mouse.y - row * FlatPalette.rowHeight
        // The list keeps the current row, however far it is scrolled.
        list.currentIndex = row
        dragged = row
        follow()
    }
    onPositionChanged: if (dragged >= 0) follow()
    onReleased: drop(true)
    onCanceled: drop(false)

    Connections {
        target: sorter.list
        function onCountChanged() { sorter.drop(false) }
    }
    Timer {
        readonly property real edge: 40
        readonly property real step: sorter.mouseY < edge ? -6 : sorter.mouseY > sorter.height - edge ? 6 : 0

        interval: 16
        repeat: true
        running: sorter.dragged >= 0 && step !== 0
        onTriggered: {
            const list = sorter.list
            const end = list.originY + Math.max(0, list.contentHeight + list.bottomMargin - list.height)
            list.contentY = Math.max(list.originY, Math.min(list.contentY + step, end))
            sorter.follow()
        }
    }
}
