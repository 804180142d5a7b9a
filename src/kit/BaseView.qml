import QtQuick
import Wayloom.Kit
import Wayloom.Screens as Screens

// The progress overlay and the hints of one screen, over everything else in it.
Item {
    id: base

    required property Screens.BaseViewController controller

    anchors.fill: parent

    ProgressOverlay {
        objectName: "HUD"
        parent: base.controller.hudOnWindow && base.Window.window ? base.Window.contentItem : base
        anchors.fill: parent
        shown: base.controller.hudShown
        labelText: base.controller.hudText
        yOffset: base.controller.hudYOffset
    }

    Hints {
        id: hints

        anchors.fill: parent
    }
    Connections {
        target: base.controller
        function onHintShown(text: string, yOffset: real) {
            hints.show(text, yOffset)
        }
    }
}
