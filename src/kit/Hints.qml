import QtQuick

// Short notes over a screen that go by themselves; several may overlap.
Item {
    id: hints

    function show(text: string, yOffset: real) {
        hintOverlay.createObject(hints, {labelText: text, yOffset: yOffset})
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
}
