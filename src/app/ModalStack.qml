import QtQuick
import Wayloom.Screens as Screens

// The modal screens over the main one. It says how far the main screen has turned away, and gives
// the keyboard to whichever screen is on top.
Item {
    id: stack

    required property Screens.ModalPresenter presenter
    required property Item mainScreen

    readonly property ModalPage topPage: presenter.count > 0 ? pages.itemAt(presenter.count - 1) as ModalPage : null
    readonly property ModalPage firstPage: presenter.count > 0 ? pages.itemAt(0) as ModalPage : null
    /// From 0 to 1 while the first screen flips in.
    readonly property real turned: firstPage && firstPage.flips ? firstPage.arrival : 0
    /// Nothing of the main screen can be seen.
    readonly property bool coversMainScreen: firstPage !== null && firstPage.arrival === 1

    function takeKeyboard() {
        if (topPage)
            topPage.forceActiveFocus()
        else
            mainScreen.forceActiveFocus()
    }
    onTopPageChanged: Qt.callLater(takeKeyboard) // qmllint disable type

    Repeater {
        id: pages

        model: stack.presenter
        // qmllint disable unqualified
        delegate: ModalPage {
            topmost: index === stack.presenter.count - 1
            visible: topmost || (stack.topPage !== null && stack.topPage.arrival < 1)
            onDeparted: stack.presenter.removeTop()
        }
        // qmllint enable unqualified
    }
}
