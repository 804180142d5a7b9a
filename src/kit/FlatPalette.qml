pragma Singleton

import QtQuick

// The flat palette and the sizes that all screens share.
QtObject {
    readonly property color turquoise: "#1abc9c"
    readonly property color greenSea: "#16a085"
    readonly property color clouds: "#ecf0f1"
    readonly property color silver: "#bdc3c7"
    readonly property color concrete: "#95a5a6"
    readonly property color midnightBlue: "#2c3e50"
    readonly property color wetAsphalt: "#34495e"
    readonly property color alizarin: "#e74c3c"

    // What the colours are for.
    readonly property color surface: "#ffffff"
    readonly property color text: midnightBlue
    readonly property color rowText: "#555555"
    readonly property color secondaryText: "#6b7b8a"
    readonly property color field: "#eef1f3"
    readonly property color separator: "#dfe4e7"
    readonly property color current: "#e3f4f1"
    readonly property color shade: "#59000000"
    readonly property color lockedTint: "#aab2b8"

    readonly property int spacing: 8
    readonly property int margin: 12
    readonly property int controlHeight: 36
    readonly property int rowHeight: 44
    readonly property int barButtonWidth: 72
    readonly property int cornerRadius: 3
    readonly property int titleSize: 17
    readonly property int bodySize: 15
    readonly property int captionSize: 12
    readonly property int smallSize: 10
}
