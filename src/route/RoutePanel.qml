import QtQuick
import Wayloom.Kit
import Wayloom.Screens as Screens

// The panel with the choices of a drive. Collapsed, its lowest strip stays in view.
Rectangle {
    id: panel

    required property Screens.WayloomViewController controller

    readonly property int stripHeight: 54
    /// The line below the panel.
    readonly property int statusHeight: statusLine.height

    /// Where the panel is bound for: its top, in points from the window's.
    readonly property real restingY: controller.collapsed ? stripHeight - height : 0

    y: restingY
    height: rows.y + rows.height + stripHeight
    color: FlatPalette.surface
    Behavior on y { NumberAnimation { duration: 500; easing.type: Easing.InOutQuad } }

    // What touches the panel does not reach the map under it.
    MouseArea {
        anchors.fill: parent
        onWheel: wheel => wheel.accepted = true
    }

    Column {
        id: rows

        y: 20
        width: parent.width
        // Out of sight, nothing in it takes the keyboard.
        enabled: !panel.controller.collapsed

        RouteRow {
            width: parent.width
            captionName: "lb_startTip"
            valueName: "lb_start"
            caption: qsTranslate("Wayloom", "Start")
            value: panel.controller.startText
            onClicked: panel.controller.startTapped()
        }
        RouteRow {
            width: parent.width
            captionName: "lb_endTip"
            valueName: "lb_end"
            caption: qsTranslate("Wayloom", "End")
            value: panel.controller.endText
            onClicked: panel.controller.endTapped()
        }
        RouteRow {
            width: parent.width
            captionName: "lb_startTimeTip"
            valueName: "lb_startTime"
            caption: qsTranslate("Wayloom", "Start Time")
            value: panel.controller.startTimeText
            onClicked: panel.controller.startTimeTapped()
        }
        RouteRow {
            width: parent.width
            captionName: "lb_endTimeTip"
            valueName: "lb_endTime"
            caption: qsTranslate("Wayloom", "End Time")
            value: panel.controller.endTimeText
            onClicked: panel.controller.endTimeTapped()
        }
    }

    Item {
        id: strip

        anchors.bottom: parent.bottom
        width: parent.width
        height: panel.stripHeight

        IconButton {
            id: btn_info

            objectName: "btn_info"
            anchors.left: parent.left
            anchors.leftMargin: FlatPalette.margin
            anchors.verticalCenter: parent.verticalCenter
            width: FlatPalette.controlHeight
            height: FlatPalette.controlHeight
            raised: false
            icon.source: "qrc:/icons/info.svg"
            onClicked: panel.controller.showInfoView()
            Accessible.name: qsTranslate("Wayloom", "Information")
        }
        Text {
            id: lb_tip

            objectName: "lb_tip"
            anchors.left: btn_info.right
            anchors.leftMargin: FlatPalette.spacing
            anchors.right: btn_upDown.left
            anchors.rightMargin: FlatPalette.spacing
            height: parent.height
            text: panel.controller.tipText
            color: FlatPalette.accentText
            font.pixelSize: FlatPalette.bodySize
            verticalAlignment: Text.AlignVCenter
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 10
            elide: Text.ElideRight
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        IconButton {
            id: btn_upDown

            objectName: "btn_upDown"
            anchors.right: enableSwitch.left
            anchors.rightMargin: FlatPalette.spacing
            anchors.verticalCenter: parent.verticalCenter
            width: FlatPalette.controlHeight
            height: FlatPalette.controlHeight
            raised: false
            text: panel.controller.collapsed ? "⬇️" : "⬆️"
            onClicked: panel.controller.upDown()
            Accessible.name: panel.controller.collapsed ? qsTranslate("Wayloom", "Show the choices")
                                                        : qsTranslate("Wayloom", "Hide the choices")
        }
        FlatSwitch {
            id: enableSwitch

            objectName: "enableSwitch"
            anchors.right: parent.right
            anchors.rightMargin: FlatPalette.margin
            anchors.verticalCenter: parent.verticalCenter
            checked: panel.controller.enabled
            onToggled: {
                panel.controller.setEnable(checked)
                // The checks decide: after a refusal the switch springs back.
                checked = Qt.binding(() => panel.controller.enabled)
            }
            Accessible.name: qsTranslate("Wayloom", "Drive")
        }
    }

    Rectangle {
        anchors.top: parent.bottom
        width: parent.width
        height: 1
        color: FlatPalette.separator
    }

    StatusLine {
        id: statusLine

        anchors.top: parent.bottom
        width: parent.width
        text: panel.controller.status.text
        isFailure: panel.controller.status.isFailure
        progress: panel.controller.status.progress
        Component.onCompleted: panel.controller.status.announceFrom(statusLine)
    }
}
