import QtQuick
import Wayloom.Screens as Screens

// The modal screens over the main one. It says how far the main screen has turned away, and gives
// the keyboard to whichever screen is on top.
Item {
    id: stack

    required property Screens.ModalPresenter presenter
    required property Item mainScreen

    readonly property ModalPage top: presenter.count > 0 ? pages.itemAt(presenter.count - 1) as ModalPage : null
    readonly property ModalPage first: presenter.count > 0 ? pages.itemAt(0) as ModalPage : null
    /// From 0 to 1 while the first screen flips in.
    readonly property real turned: first && first.flips ? first.arrival : 0
    /// Nothing of the main screen can be seen.
    readonly property bool coversMainScreen: first !== null && first.arrival === 1

    function takeKeyboard() {
        if (top)
            top.forceActiveFocus()
        else
            mainScreen.forceActiveFocus()
    }
    onTopChanged: Qt.callLater(takeKeyboard)

    Repeater {
        id: pages

        model: stack.presenter
        delegate: ModalPage {
            topmost: index === stack.presenter.count - 1
            visible: topmost || (stack.top !== null && stack.top.arrival < 1)
            onLeft: stack.presenter.removeTop()
        }
    }
}
