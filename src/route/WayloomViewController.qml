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

    function openMenu(place: point, name: string) {
        mapMenu.place = place
        mapMenu.name = name
        mapMenu.open(mv_main.mapToItem(mapMenu, mv_main.pointOf(place)))
    }

    // The keys of menus ask for the map's, whatever has the keyboard, unless a panel lies over it.
    function askForMenu() {
        if (mv_main.enabled)
            mv_main.menuAsked(Qt.point(mv_main.width / 2, mv_main.height / 2))
    }
    Keys.onMenuPressed: askForMenu()
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier
        if (event.accepted)
            askForMenu()
    }

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
            onMenuAsked: at => root.openMenu(mv_main.placeAt(at), "")
            Accessible.role: Accessible.Graphic
            Accessible.name: qsTranslate("Wayloom", "Map")
        }

        StarLayer {
            anchors.fill: mv_main
            map: mv_main
            stars: root.controller.stars
            onChosen: (row, place, name) => root.openMenu(place, name)
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

    MapMenu {
        id: mapMenu

        anchors.fill: parent
        title: name.length > 0 ? name : place.y.toFixed(6) + ", " + place.x.toFixed(6)
        actions: [
            {text: qsTranslate("Wayloom", "Start here"), run: (there, what) => root.controller.startAt(there, what)},
            {text: qsTranslate("Wayloom", "End here"), run: (there, what) => root.controller.endAt(there, what)},
            {text: qsTranslate("Wayloom", "Save as favorite"), isForUnnamed: true, run: there => root.controller.saveFavoriteAt(there)},
            {text: qsTranslate("Wayloom", "Copy coordinates"), run: there => root.controller.copyPosition(there)}
        ].filter(action => name.length === 0 || !action.isForUnnamed)
        onClosed: mv_main.forceActiveFocus()
    }

    DatePanel {
        id: v_picker

        controller: root.controller
        onClosed: mv_main.forceActiveFocus()
    }

    BaseView { controller: root.controller }
}
