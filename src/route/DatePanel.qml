import QtQuick
import Wayloom.Kit
import Wayloom.Screens as Screens

// The date picker: it slides up over the dimmed screen and goes with a touch beside it.
FocusScope {
    id: v_picker

    required property Screens.WayloomViewController controller

    readonly property bool shown: controller.pickerShown
    /// How far it has come in, from 0 to 1.
    property real arrival: shown ? 1 : 0

    signal closed()

    objectName: "v_picker"
    anchors.fill: parent
    visible: arrival > 0
    onShownChanged: if (shown) dp_drive.forceActiveFocus()
    onVisibleChanged: if (!visible) closed()
    Keys.onEscapePressed: controller.pickerButtonClicked()
    Keys.onBackPressed: controller.pickerButtonClicked()
    Keys.onReturnPressed: controller.pickerButtonClicked()
    Keys.onEnterPressed: controller.pickerButtonClicked()
    Behavior on arrival { NumberAnimation { duration: 500; easing.type: Easing.InOutQuad } }

    Rectangle {
        id: btn_picker

        objectName: "btn_picker"
        anchors.fill: parent
        color: "black"
        opacity: 0.3 * v_picker.arrival
        Accessible.role: Accessible.Button
        Accessible.name: qsTranslate("Wayloom", "Close")

        MouseArea {
            anchors.fill: parent
            enabled: v_picker.shown
            onClicked: v_picker.controller.pickerButtonClicked()
            onWheel: wheel => wheel.accepted = true
        }
    }

    DateWheels {
        id: dp_drive

        objectName: "dp_drive"
        y: v_picker.height - v_picker.arrival * height
        width: parent.width
        focus: true
        enabled: v_picker.shown
        picker: v_picker.controller.picker
    }
}
