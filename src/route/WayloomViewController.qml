import QtQuick
import Wayloom.Kit
import Wayloom.Map
import Wayloom.Screens as Screens

// The route screen: the map, a panel with the choices of the drive over it, and a date picker that
// slides up.
FocusScope {
    id: root

    required property Screens.WayloomViewController controller

    Component.onCompleted: controller.viewDidLoad(mv_main)

    // While a date is chosen, neither touches nor the keyboard reach what lies under it.
    Item {
        anchors.fill: parent
        enabled: !v_picker.visible

        MapView {
            id: mv_main

            objectName: "mv_main"
            anchors.fill: parent
            // Below the panel and its line, which it also lies under while they slide away.
            anchors.topMargin: Math.min(v_top.y, v_top.restingY) + v_top.height + v_top.statusHeight
            focus: true
            onTapped: mv_main.forceActiveFocus()
            Accessible.role: Accessible.Graphic
            Accessible.name: qsTranslate("Wayloom", "Map")
        }

        Attribution {
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 4
            maximumWidth: parent.width - 2 * (btn_mine.width + 2 * FlatPalette.margin)
            text: mv_main.attribution
        }

        IconButton {
            id: btn_mine

            objectName: "btn_mine"
            x: FlatPalette.margin
            y: root.height - 86
            icon.source: "qrc:/icons/locate.svg"
            onClicked: root.controller.mineLocationButtonClicked()
            Accessible.name: qsTranslate("Wayloom", "My location")
        }
        IconButton {
            id: btn_exchange

            objectName: "btn_exchange"
            x: root.width - width - FlatPalette.margin
            y: root.height - 86
            cornerRadius: 8
            icon.source: "qrc:/icons/exchange.svg"
            onClicked: root.controller.exchange()
            Accessible.name: qsTranslate("Wayloom", "Switch mode")
        }

        RoutePanel {
            id: v_top

            objectName: "v_top"
            width: parent.width
            controller: root.controller
        }
    }

    DatePanel {
        id: v_picker

        controller: root.controller
        onClosed: mv_main.forceActiveFocus()
    }

    BaseView { controller: root.controller }
}
