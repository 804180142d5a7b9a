import QtQuick
import Wayloom.Kit

// A search field with its button.
Row {
    id: search

    property string text: ""
    readonly property Item field: searchField

    signal textEdited(string text)
    signal accepted()
    signal searchClicked()
    signal escaped()
    /// The field has got the keyboard.
    signal entered()
    signal downPressed()

    spacing: FlatPalette.spacing

    FlatTextField {
        id: searchField

        objectName: "searchField"
        width: parent.width - searchButton.width - parent.spacing
        placeholderText: qsTranslate("Wayloom", "Enter Address Here")
        text: search.text
        onTextEdited: search.textEdited(text)
        onAccepted: search.accepted()
        inputMethodHints: Qt.ImhNoPredictiveText
        onActiveFocusChanged: if (activeFocus) search.entered()
        Keys.onEscapePressed: search.escaped()
        Keys.onDownPressed: search.downPressed()
    }
    FlatButton {
        id: searchButton

        objectName: "searchButton"
        width: 92
        text: qsTranslate("Wayloom", "Search")
        onClicked: search.searchClicked()
    }
}
