import QtQuick

// Shows which control the keyboard is on.
Rectangle {
    anchors.fill: parent
    anchors.margins: -2
    color: "transparent"
    border.color: FlatPalette.focus
    border.width: 2
}
