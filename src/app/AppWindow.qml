import QtQuick
import Wayloom.Kit
import Wayloom.Screens as Screens

// What the window holds: the current main screen, modal screens over it, and alerts over everything.
Rectangle {
    id: appWindow

    /// Whether the fixed-location screen is the current one, else the route screen is.
    required property bool locationShown
    property Screens.SpotloomViewController locationController: null
    property Screens.WayloomViewController wayloomController: null
    required property Screens.ModalPresenter modals
    required property Screens.AlertPresenter alerts

    function showCurrent() {
        const current = locationShown ? locationScreen : routeScreen
        current.active = true
        current.focus = true
        modalStack.takeKeyboard()
    }

    // Seen for a moment while a screen flips.
    color: FlatPalette.midnightBlue
    onLocationShownChanged: showCurrent()
    Component.onCompleted: showCurrent()

    FocusScope {
        id: mainScreens

        width: parent.width
        height: parent.height
        focus: true
        enabled: !alertPanel.visible && appWindow.modals.count === 0
        visible: !modalStack.coversMainScreen
        transform: Scale {
            origin.x: mainScreens.width / 2
            xScale: Math.max(0, 1 - 2 * modalStack.turned)
        }

        // A screen is made when it is first shown, and keeps its state while the other one is.
        Loader {
            id: locationScreen

            readonly property bool isCurrent: appWindow.locationShown

            anchors.fill: parent
            active: false
            visible: isCurrent
            sourceComponent: SpotloomViewController {
                controller: appWindow.locationController // qmllint disable unqualified
                focus: true
            }
        }
        Loader {
            id: routeScreen

            readonly property bool isCurrent: !appWindow.locationShown

            anchors.fill: parent
            active: false
            visible: isCurrent
            sourceComponent: WayloomViewController {
                controller: appWindow.wayloomController // qmllint disable unqualified
                focus: true
            }
        }
    }

    ModalStack {
        id: modalStack

        anchors.fill: parent
        presenter: appWindow.modals
        mainScreen: mainScreens
        enabled: !alertPanel.visible
    }

    AlertPanel {
        id: alertPanel

        presenter: appWindow.alerts
        onVisibleChanged: if (!visible) modalStack.takeKeyboard()
    }
}
