import QtQuick
import Wayloom.Kit
import Wayloom.Screens as Screens

// What the window holds: the current main screen, and alerts over everything.
Item {
    id: appWindow

    required property Screens.SpotloomViewController locationController
    required property Screens.AlertPresenter alerts

    SpotloomViewController {
        id: locationScreen

        anchors.fill: parent
        controller: appWindow.locationController
        focus: true
        enabled: !alertPanel.visible
    }

    AlertPanel {
        id: alertPanel

        presenter: appWindow.alerts
        onVisibleChanged: if (!visible) locationScreen.forceActiveFocus()
    }
}
