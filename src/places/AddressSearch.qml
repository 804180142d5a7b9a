import QtQuick
import Wayloom.Kit

// A search field with its button.
Row {
    id: search

    property string text: ""

    signal textEdited(string text)
    signal accepted()
    signal searchClicked()
    signal escaped()

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
        Keys.onEscapePressed: search.escaped()
    }
    FlatButton {
        id: searchButton

        objectName: "searchButton"
        width: 92
        text: qsTranslate("Wayloom", "Search")
        onClicked: search.searchClicked()
    }
}
