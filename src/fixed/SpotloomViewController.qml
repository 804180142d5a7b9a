import QtQuick
import Wayloom.Kit
import Wayloom.Map
import Wayloom.Screens as Screens

// The fixed-location screen: a bar with search and address, the map under a fixed centre mark, and
// the drift panel while the position is on.
FocusScope {
    id: root

    required property Screens.SpotloomViewController controller

    /// How far above the lower edge the buttons over the map begin. They glide when the drift panel
    /// comes or goes, and only then.
    property real buttonInset: controller.buttonInset
    property bool isLoaded: false

    Behavior on buttonInset {
        enabled: root.isLoaded

        NumberAnimation { duration: 200; easing.type: Easing.OutCubic }
    }
    Component.onCompleted: {
        controller.viewDidLoad(mainMapView)
        isLoaded = true
    }

    // The keys of menus ask for the map's, whatever has the keyboard, unless a panel lies over it.
    function askForMenu() {
        if (mainMapView.enabled)
            mainMapView.menuAsked(Qt.point(mainMapView.width / 2, mainMapView.height / 2))
    }
    Keys.onMenuPressed: askForMenu()
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier
        if (event.accepted)
            askForMenu()
    }

    Connections {
        target: root.controller
        function onKeyboardDismissed() { mainMapView.forceActiveFocus() }
        function onHintShown(text: string) { hints.show(text, 0) }
    }

    // While the name panel is open, neither touches nor the keyboard reach what lies under it.
    Item {
        anchors.fill: parent
        enabled: !alertView.naming

        MapView {
            id: mainMapView

            objectName: "mainMapView"
            anchors.fill: parent
            anchors.topMargin: topView.y + topView.height + statusLine.height
            zoomsAboutCenter: true
            focus: true
            onTapped: mainMapView.forceActiveFocus()
            onMenuAsked: at => {
                mapMenu.place = mainMapView.placeAt(at)
                mapMenu.open(mainMapView.mapToItem(mapMenu, at))
            }
            Accessible.role: Accessible.Graphic
            Accessible.name: qsTranslate("Wayloom", "Map")
        }

        StarLayer {
            anchors.fill: mainMapView
            map: mainMapView
            stars: root.controller.stars
            onChosen: row => root.controller.chooseFavorite(row)
        }

        // The mark's tip is the chosen position; its shadow lies two points below.
        Image {
            id: locationImageView

            objectName: "locationImageView"
            anchors.horizontalCenter: mainMapView.horizontalCenter
            anchors.bottom: mainMapView.verticalCenter
            anchors.bottomMargin: -2
            source: "qrc:/icons/pin.svg"
            sourceSize.width: 36
            sourceSize.height: 46
        }

        Attribution {
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            anchors.bottomMargin: (v_auto.visible ? v_auto.height : 0) + 4
            maximumWidth: parent.width - 2 * (btn_mine.width + 2 * FlatPalette.margin)
            text: mainMapView.attribution
        }

        Rectangle {
            id: bgLabel

            objectName: "bgLabel"
            width: parent.width
            height: 20
            color: FlatPalette.surface
        }

        Rectangle {
            id: topView

            objectName: "topView"
            y: 20
            width: parent.width
            height: addressRow.y + addressRow.height
            color: FlatPalette.surface

            AddressSearch {
                id: searchRow

                x: FlatPalette.margin
                width: parent.width - 2 * FlatPalette.margin
                text: root.controller.searchText
                onTextEdited: text => {
                    root.controller.searchText = text
                    root.controller.offerSearches()
                }
                onEntered: root.controller.offerSearches()
                onDownPressed: searchList.enter()
                onAccepted: root.controller.textFieldShouldReturn()
                onSearchClicked: root.controller.searchButtonClicked()
                onEscaped: mainMapView.forceActiveFocus()
            }

            Item {
                id: actionRow

                x: FlatPalette.margin
                y: searchRow.height + FlatPalette.spacing
                width: parent.width - 2 * FlatPalette.margin
                height: FlatPalette.controlHeight

                Row {
                    readonly property real buttonWidth: Math.min(112, (btn_info.x - 2 * spacing) / 2)

                    spacing: FlatPalette.spacing

                    FlatButton {
                        id: addButton

                        objectName: "addButton"
                        width: parent.buttonWidth
                        text: qsTranslate("Wayloom", "Add To →")
                        onClicked: root.controller.addToFavorites()
                    }
                    FlatButton {
                        id: favoritesButton

                        objectName: "favoritesButton"
                        width: parent.buttonWidth
                        text: qsTranslate("Wayloom", "Favorites")
                        onClicked: root.controller.showFavoritesView()
                    }
                }

                IconButton {
                    id: btn_info

                    objectName: "btn_info"
                    anchors.right: enableSwitch.left
                    anchors.rightMargin: FlatPalette.spacing
                    width: FlatPalette.controlHeight
                    height: FlatPalette.controlHeight
                    raised: false
                    icon.source: "qrc:/icons/info.svg"
                    onClicked: root.controller.showInfoView()
                    Accessible.name: qsTranslate("Wayloom", "Information")
                }

                FlatSwitch {
                    id: enableSwitch

                    objectName: "enableSwitch"
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    checked: root.controller.enabled
                    onToggled: {
                        root.controller.setEnable(checked)
                        // The file decides: after a refusal the switch springs back.
                        checked = Qt.binding(() => root.controller.enabled)
                    }
                    Accessible.name: qsTranslate("Wayloom", "Fixed location")
                }
            }

            AddressLine {
                id: addressRow

                x: FlatPalette.margin
                y: actionRow.y + actionRow.height + 4
                width: parent.width - 2 * FlatPalette.margin
                address: root.controller.addressText
                coordinates: root.controller.coordinatesText
                spinning: root.controller.spinning
                onClicked: root.controller.copyCoordinates()
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
                text: root.controller.status.text
                isFailure: root.controller.status.isFailure
                progress: root.controller.status.progress
                Component.onCompleted: root.controller.status.announceFrom(statusLine)
            }

            // A touch beside the controls takes the keyboard away.
            TapHandler { onTapped: mainMapView.forceActiveFocus() }
        }

        IconButton {
            id: btn_mine

            objectName: "btn_mine"
            x: FlatPalette.margin
            y: root.height - root.buttonInset
            icon.source: "qrc:/icons/locate.svg"
            onClicked: root.controller.mineLocationButtonClicked()
            Accessible.name: qsTranslate("Wayloom", "My location")
        }

        IconButton {
            id: btn_exchange

            objectName: "btn_exchange"
            x: root.width - width - FlatPalette.margin
            y: root.height - root.buttonInset
            cornerRadius: 8
            icon.source: "qrc:/icons/exchange.svg"
            onClicked: root.controller.exchange()
            Accessible.name: qsTranslate("Wayloom", "Switch mode")
        }

        DriftPanel {
            id: v_auto

            objectName: "v_auto"
            anchors.bottom: parent.bottom
            width: parent.width
            controller: root.controller
        }

        SearchListView {
            id: searchList

            x: searchRow.x
            y: topView.y + searchRow.height + 2
            width: searchRow.width
            maximumHeight: root.height - y - FlatPalette.margin
            field: searchRow.field
            searches: root.controller.searchList
            onChosen: row => root.controller.chooseSearch(row)
            onEscaped: mainMapView.forceActiveFocus()
        }
    }

    MapMenu {
        id: mapMenu

        anchors.fill: parent
        title: place.y.toFixed(6) + ", " + place.x.toFixed(6)
        actions: [
            {text: qsTranslate("Wayloom", "Put the pin here"), run: there => root.controller.pinAt(there)},
            {text: qsTranslate("Wayloom", "Save as favorite"), run: there => root.controller.saveFavoriteAt(there)},
            {text: qsTranslate("Wayloom", "Copy coordinates"), run: there => root.controller.copyPosition(there)}
        ]
        onClosed: mainMapView.forceActiveFocus()
    }

    Hints {
        id: hints

        anchors.fill: parent
    }

    FavoriteNamePanel {
        id: alertView

        objectName: "alertView"
        controller: root.controller
        onClosed: mainMapView.forceActiveFocus()
    }

    ProgressOverlay {
        objectName: "HUD"
        anchors.fill: parent
        shown: root.controller.overlayShown
        labelText: root.controller.overlayText
    }
}
