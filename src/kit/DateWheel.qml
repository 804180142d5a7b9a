import QtQuick
import Wayloom.Screens as Screens

// One wheel of a date picker. It turns by touch, mouse wheel and keys, and a click takes a row.
ListView {
    id: wheel

    required property Screens.DatePicker picker
    required property int column
    required property int value
    /// Whether to show that the keyboard is on it.
    property bool marksFocus: false

    readonly property int rowSize: 36

    function turn(row: int) {
        wheel.picker.turn(wheel.column, row)
        // It may have sprung back to a value that it had before.
        wheel.currentIndex = Qt.binding(() => wheel.value)
    }

    clip: true
    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    snapMode: ListView.SnapToItem
    highlightRangeMode: ListView.StrictlyEnforceRange
    highlightMoveDuration: 150
    preferredHighlightBegin: (height - rowSize) / 2
    preferredHighlightEnd: (height + rowSize) / 2
    currentIndex: value
    // A wheel that gets other rows begins at its first one.
    onModelChanged: {
        currentIndex = Qt.binding(() => wheel.value)
        positionViewAtIndex(value, ListView.SnapPosition)
    }
    keyNavigationEnabled: false
    // Closed while it runs, the picker has taken what it showed then.
    onEnabledChanged: if (!enabled) cancelFlick()
    onMovementEnded: {
        if (enabled)
            turn(currentIndex)
        else
            currentIndex = Qt.binding(() => wheel.value)
    }
    Keys.onUpPressed: turn(value - 1)
    Keys.onDownPressed: turn(value + 1)
    Accessible.role: Accessible.SpinBox
    Accessible.name: currentItem ? (currentItem as DateWheelRow).text : ""

    // qmllint disable unqualified
    delegate: DateWheelRow {
        required property int index

        width: wheel.width
        height: wheel.rowSize
        text: wheel.picker.rowText(wheel.column, index)
        isChosen: ListView.isCurrentItem
        onClicked: wheel.turn(index)
    }
    // qmllint enable unqualified

    WheelHandler {
        property real turned: 0

        onWheel: event => {
            turned -= event.angleDelta.y / 120
            const rows = Math.trunc(turned)
            if (rows === 0)
                return
            turned -= rows
            wheel.turn(wheel.value + rows)
        }
    }

    FocusRing {
        visible: wheel.activeFocus && wheel.marksFocus
        radius: FlatPalette.cornerRadius
        anchors.margins: 2
    }
}
