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

    Component {
        id: hintOverlay

        ProgressOverlay {
            id: hint

            objectName: "hint"
            anchors.fill: parent
            textOnly: true
            margin: 10
            Component.onCompleted: shown = true
            Accessible.role: Accessible.AlertMessage
            Accessible.name: labelText

            Timer {
                interval: 1000
                running: true
                onTriggered: {
                    hint.shown = false
                    hint.destroy(500)  // When it has faded.
                }
            }
        }
    }
    Connections {
        target: base.controller
        function onHintShown(text: string, yOffset: real) {
            hintOverlay.createObject(base, {labelText: text, yOffset: yOffset})
        }
    }
}
