import QtQuick
import QtQuick.Templates as T

// A small menu at a place of a map, over everything that its parent shows. A touch elsewhere, or
// Escape, closes it.
FocusScope {
    id: menu

    /// What can be done: {text, run}, where run is called with the place and its name.
    property var actions: []
    property point place
    property string name: ""
    property string title: ""

    signal closed()

    /// `at` is in this item's coordinates.
    function open(at: point) {
        panel.x = Math.max(8, Math.min(at.x, width - panel.width - 8))
        panel.y = Math.max(8, Math.min(at.y, height - panel.height - 8))
        visible = true
        rows.currentIndex = -1
        rows.forceActiveFocus()
    }
    function close() {
        visible = false
        closed()
    }
    function run(row: int) {
        if (row < 0)
            return
        const action = actions[row]
        close()
        action.run(place, name)
    }

    visible: false

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        // Not when it is pressed: what lies below would take the release for a touch of its own.
        onReleased: menu.close()
        onWheel: wheel => wheel.accepted = true
    }

    Rectangle {
        anchors.fill: panel
        anchors.topMargin: 2
        anchors.bottomMargin: -2
        radius: panel.radius
        color: "#33000000"
    }
    Rectangle {
        id: panel

        objectName: "mapMenu"
        width: Math.min(250, menu.width - 16)
        height: caption.height + rows.contentHeight + 2
        radius: 6
        color: FlatPalette.surface
        border.color: FlatPalette.separator

        Text {
            id: caption

            x: FlatPalette.margin
            width: parent.width - 2 * FlatPalette.margin
            height: 30
            text: menu.title
            color: FlatPalette.secondaryText
            font.pixelSize: FlatPalette.captionSize
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            maximumLineCount: 1
            textFormat: Text.PlainText
        }
        FlatListView {
            id: rows

            objectName: "mapMenuRows"
            anchors.fill: parent
            anchors.topMargin: caption.height
            anchors.margins: 1
            model: menu.actions
            keyNavigationWraps: true
            activeFocusOnTab: false
            Accessible.role: Accessible.PopupMenu
            Accessible.name: menu.title
            Keys.onReturnPressed: menu.run(currentIndex)
            Keys.onEnterPressed: menu.run(currentIndex)
            Keys.onEscapePressed: menu.close()
            Keys.onBackPressed: menu.close()
            Keys.onTabPressed: incrementCurrentIndex()
            Keys.onBacktabPressed: decrementCurrentIndex()

            // qmllint disable unqualified
            delegate: T.AbstractButton {
                id: row

                required property int index
                required property var modelData

                width: ListView.view.width
                implicitHeight: FlatPalette.rowHeight
                leftPadding: FlatPalette.margin
                rightPadding: FlatPalette.margin
                focusPolicy: Qt.NoFocus
                onClicked: menu.run(index)
                Accessible.role: Accessible.MenuItem
                Accessible.name: modelData.text
                Accessible.onPressAction: clicked()

                contentItem: Text {
                    text: row.modelData.text
                    color: FlatPalette.text
                    font.pixelSize: FlatPalette.bodySize
                    verticalAlignment: Text.AlignVCenter
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: FlatPalette.captionSize
                    elide: Text.ElideRight
                    textFormat: Text.PlainText
                }
                background: Rectangle {
                    radius: 5
                    color: row.down || row.hovered || (row.ListView.isCurrentItem && rows.activeFocus)
                           ? FlatPalette.current : "transparent"
                }
            }
            // qmllint enable unqualified
        }
    }
}
