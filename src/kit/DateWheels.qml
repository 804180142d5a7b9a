import QtQuick
import Wayloom.Screens as Screens

// The wheels of a date picker, side by side over a band that marks the chosen moment.
FocusScope {
    id: wheels

    required property Screens.DatePicker picker

    implicitHeight: 216

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
            value: wheels.picker.hour
            model: 24
            KeyNavigation.right: minuteWheel
        }
        DateWheel {
            id: minuteWheel

            objectName: "minuteWheel"
            width: 70
            height: parent.height
            picker: wheels.picker
            column: Screens.DatePicker.Minute
            value: wheels.picker.minute
            model: 60
        }
    }
}
