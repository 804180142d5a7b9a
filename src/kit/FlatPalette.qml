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
    readonly property color alizarin: "#e74c3c"

    // What the colours are for. Screens use these, so that they follow the desktop's appearance: a
    // dark one is known by the colour of its windows, and may be chosen while the program runs.
    readonly property bool dark: desktop.window.hslLightness < 0.5
    readonly property color surface: dark ? "#1f2a35" : "#ffffff"
    readonly property color text: dark ? "#e4eaee" : midnightBlue
    readonly property color rowText: dark ? "#d3dae0" : "#555555"
    readonly property color secondaryText: dark ? "#9fb0bf" : "#647482"
    readonly property color accentText: dark ? turquoise : "#107a65"
    readonly property color field: dark ? "#2c3a48" : "#eef1f3"
    readonly property color separator: dark ? "#3a4a5a" : "#dfe4e7"
    readonly property color current: dark ? "#1d463f" : "#e3f4f1"
    readonly property color pressed: dark ? "#34495e" : clouds
    readonly property color focus: dark ? "#ecf0f1" : midnightBlue
    readonly property color switchGround: dark ? "#0d151d" : midnightBlue
    readonly property color switchGroundOff: dark ? "#5b6b7a" : silver
    readonly property color bar: dark ? "#3d5266" : midnightBlue
    readonly property color veil: dark ? "#cc1f2a35" : "#ccffffff"
    readonly property color shade: dark ? "#8c000000" : "#59000000"
    readonly property color lockedTint: dark ? "#66757f" : "#aab2b8"

    readonly property SystemPalette desktop: SystemPalette {}

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
