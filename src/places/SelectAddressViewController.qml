import QtQuick
import Wayloom.Kit
import Wayloom.Map
import Wayloom.Screens as Screens

// The address picker: a bar with search and address, and the map under the pin that marks the pick.
FocusScope {
    id: root

    required property Screens.SelectAddressViewController controller

    focus: true
    Component.onCompleted: controller.viewDidLoad(mainMapView)

    Connections {
        target: root.controller
        function onKeyboardDismissed() { mainMapView.forceActiveFocus() }
    }

    MapView {
        id: mainMapView

        objectName: "mainMapView"
        anchors.fill: parent
        anchors.topMargin: topView.y + topView.height
        anchors.bottomMargin: buttonBar.height
        zoomsAboutCenter: true
        focus: true
        onTapped: mainMapView.forceActiveFocus()
        Accessible.role: Accessible.Graphic
        Accessible.name: qsTranslate("Wayloom", "Map")
    }

    // The mark's tip is the picked place; its shadow lies two points below.
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
        anchors.horizontalCenter: mainMapView.horizontalCenter
        anchors.bottom: mainMapView.bottom
        anchors.bottomMargin: 4
        maximumWidth: root.width - 2 * (btn_mine.width + 2 * FlatPalette.margin)
        text: mainMapView.attribution
    }

    IconButton {
        id: btn_mine

        objectName: "btn_mine"
        anchors.left: parent.left
        anchors.bottom: mainMapView.bottom
        anchors.margins: FlatPalette.margin
        icon.source: "qrc:/icons/locate.svg"
        onClicked: root.controller.mineLocationButtonClicked()
        Accessible.name: qsTranslate("Wayloom", "My location")
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

        AddressLine {
            id: addressRow

            x: FlatPalette.margin
            y: searchRow.height + 4
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

        // A touch beside the controls takes the keyboard away.
        TapHandler { onTapped: mainMapView.forceActiveFocus() }
    }

    Rectangle {
        id: buttonBar

        objectName: "buttonBar"

        anchors.bottom: parent.bottom
        width: parent.width
        height: FlatPalette.controlHeight + 2 * FlatPalette.margin
        color: FlatPalette.surface

        Row {
            x: FlatPalette.margin
            y: FlatPalette.margin
            width: parent.width - 2 * FlatPalette.margin
            spacing: FlatPalette.margin

            FlatButton {
                id: btn_cancel

                objectName: "btn_cancel"
                width: (parent.width - parent.spacing) / 2
                text: qsTranslate("Wayloom", "CANCEL")
                onClicked: root.controller.cancelButtonClicked()
            }
            FlatButton {
                id: btn_ok

                objectName: "btn_ok"
                width: btn_cancel.width
                text: qsTranslate("Wayloom", "OK")
                onClicked: root.controller.okButtonClicked()
            }
        }
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

    BaseView { controller: root.controller }
}
