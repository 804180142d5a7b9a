import QtQuick
import Wayloom.Kit
import Wayloom.Screens as Screens

// What the window holds: the current main screen, modal screens over it, and alerts over everything.
Rectangle {
    id: appWindow

    required property Screens.SpotloomViewController locationController
    required property Screens.ModalPresenter modals
    required property Screens.AlertPresenter alerts

    // Seen for a moment while a screen flips.
    color: FlatPalette.midnightBlue

    SpotloomViewController {
        id: locationScreen

        width: parent.width
        height: parent.height
        controller: appWindow.locationController
        focus: true
        enabled: !alertPanel.visible && appWindow.modals.count === 0
        visible: !modalStack.coversMainScreen
        transform: Scale {
            origin.x: locationScreen.width / 2
            xScale: Math.max(0, 1 - 2 * modalStack.turned)
        }
    }

    ModalStack {
        id: modalStack

        anchors.fill: parent
        presenter: appWindow.modals
        mainScreen: locationScreen
        enabled: !alertPanel.visible
    }

    AlertPanel {
        id: alertPanel

        presenter: appWindow.alerts
        onVisibleChanged: if (!visible) modalStack.takeKeyboard()
    }
}
