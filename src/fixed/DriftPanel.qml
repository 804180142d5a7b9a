import QtQuick
import Wayloom.Kit
import Wayloom.Screens as Screens

// Lets the pinned position drift by itself, at a speed between slow and fast.
Rectangle {
    id: panel

    required property Screens.SpotloomViewController controller

    height: 80
    visible: controller.autoPanelShown
    color: FlatPalette.surface

    // What touches the panel does not reach the map under it.
    MouseArea {
        anchors.fill: parent
        onWheel: wheel => wheel.accepted = true
    }

    Rectangle {
        width: parent.width
        height: 1
        color: FlatPalette.separator
    }

    Text {
        id: lb_auto

        objectName: "lb_auto"
        anchors.left: parent.left
        anchors.leftMargin: FlatPalette.margin
        anchors.right: s_auto.left
        anchors.rightMargin: FlatPalette.margin
        anchors.verticalCenter: s_auto.verticalCenter
        text: qsTranslate("Wayloom", "Turn on the switch will change your coordinate automatic in a range")
        color: FlatPalette.text
        font.pixelSize: FlatPalette.captionSize
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
    }

    FlatSwitch {
        id: s_auto

        objectName: "s_auto"
        anchors.right: parent.right
        anchors.rightMargin: FlatPalette.margin
        y: 8
        checked: panel.controller.drifting
        onToggled: {
            panel.controller.setAuto(checked)
            checked = Qt.binding(() => panel.controller.drifting)
        }
        Accessible.name: lb_auto.text
    }

    Text {
        id: lb_slow

        objectName: "lb_slow"
        anchors.left: parent.left
        anchors.leftMargin: FlatPalette.margin
        anchors.verticalCenter: sd_auto.verticalCenter
        text: qsTranslate("Wayloom", "slow")
        color: FlatPalette.secondaryText
        font.pixelSize: FlatPalette.captionSize
    }

    FlatSlider {
        id: sd_auto

        objectName: "sd_auto"
        anchors.left: lb_slow.right
        anchors.right: lb_fast.left
        anchors.margins: FlatPalette.spacing
        y: 44
        from: panel.controller.driftSpeedMinimum
        to: panel.controller.driftSpeedMaximum
        value: panel.controller.driftSpeed
        acceptsTouches: panel.controller.sliderAcceptsTouches
        tint: acceptsTouches ? FlatPalette.turquoise : FlatPalette.lockedTint
        onMoved: {
            panel.controller.autoSlide(value)
            value = Qt.binding(() => panel.controller.driftSpeed)
        }
        Accessible.name: qsTranslate("Wayloom", "Drift speed")
    }

    Text {
        id: lb_fast

        objectName: "lb_fast"
        anchors.right: parent.right
        anchors.rightMargin: FlatPalette.margin
        anchors.verticalCenter: sd_auto.verticalCenter
        text: qsTranslate("Wayloom", "fast")
        color: FlatPalette.secondaryText
        font.pixelSize: FlatPalette.captionSize
    }
}
