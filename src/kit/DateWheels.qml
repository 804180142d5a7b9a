import QtQuick
import Wayloom.Screens as Screens

// The wheels of a date picker, side by side over a band that marks the chosen moment.
FocusScope {
    id: wheels

    required property Screens.DatePicker picker

    /// A key was pressed since the picker got the keyboard.
    property bool keysUsed: false

    implicitHeight: 216
    onActiveFocusChanged: keysUsed = false
    Keys.priority: Keys.BeforeItem
    Keys.onPressed: event => {
        keysUsed = true
        event.accepted = false
    }

    Rectangle {
        anchors.fill: parent
        color: FlatPalette.surface

        // What touches the picker does not reach what lies behind it.
        MouseArea {
            anchors.fill: parent
            onWheel: wheel => wheel.accepted = true
        }
    }
    Rectangle {
        anchors.centerIn: parent
        width: row.width
        height: 36
        radius: 6
        color: FlatPalette.field
    }

    Row {
        id: row

        anchors.horizontalCenter: parent.horizontalCenter
        height: parent.height

        DateWheel {
            id: dayWheel

            objectName: "dayWheel"
            width: Math.min(170, wheels.width - 140)
            height: parent.height
            focus: true
            picker: wheels.picker
            column: Screens.DatePicker.Day
            marksFocus: wheels.keysUsed
            value: wheels.picker.day
            model: wheels.picker.dayCount
            KeyNavigation.right: hourWheel
        }
        DateWheel {
            id: hourWheel

            objectName: "hourWheel"
            width: 70
            height: parent.height
            picker: wheels.picker
            column: Screens.DatePicker.Hour
            marksFocus: wheels.keysUsed
            value: wheels.picker.hour
            model: wheels.picker.hourCount
            KeyNavigation.right: minuteWheel
        }
        DateWheel {
            id: minuteWheel

            objectName: "minuteWheel"
            width: 70
            height: parent.height
            picker: wheels.picker
            column: Screens.DatePicker.Minute
            marksFocus: wheels.keysUsed
            value: wheels.picker.minute
            model: 60
        }
    }
}
