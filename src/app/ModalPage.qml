import QtQuick
import Wayloom.Screens as Screens

// One modal screen: it loads the layout, moves it in, and moves it out when its controller is done.
FocusScope {
    id: page

    required property int index
    required property string layout
    required property Screens.ModalViewController controller
    required property int transition

    property bool topmost: true
    /// How much of the way in has been gone.
    property real arrival: 0
    property bool leaving: false
    readonly property bool flips: transition === Screens.ModalPresenter.Flip

    signal departed()

    width: parent.width
    height: parent.height
    y: flips ? 0 : (1 - arrival) * height
    enabled: topmost && !leaving
    // The second half of the flip is this screen's; the first is that of the screen below.
    transform: Scale {
        origin.x: page.width / 2
        xScale: page.flips ? Math.max(0, 2 * page.arrival - 1) : 1
    }

    Component.onCompleted: {
        contents.setSource(Qt.resolvedUrl(layout + ".qml"), {controller: page.controller})
        arriving.start()
    }

    Keys.onEscapePressed: page.controller.done()
    Keys.onBackPressed: page.controller.done()

    Connections {
        target: page.controller
        function onDismissed() {
            page.leaving = true
            arriving.stop()
            departing.start()
        }
    }

    NumberAnimation {
        id: arriving

        target: page
        property: "arrival"
        to: 1
        duration: page.flips ? 400 : 300
        easing.type: Easing.InOutQuad
    }
    NumberAnimation {
        id: departing

        target: page
        property: "arrival"
        to: 0
        duration: page.flips ? 400 : 300
        easing.type: Easing.InOutQuad
        onFinished: page.departed()
    }

    Loader {
        id: contents

        anchors.fill: parent
        focus: true
    }
}
