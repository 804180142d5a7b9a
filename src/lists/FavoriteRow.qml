import QtQuick
import QtQuick.Templates as T
import Wayloom.Kit

// One favourite: its name, and behind it, after a swipe to the left, the delete button. While the
// list is edited, a mark that opens it and a grip to drag it by stand beside the name.
T.SwipeDelegate {
    id: row

    required property int index
    required property string name
    property bool editing: false
    property bool current: false
    /// The name is being typed.
    property bool renaming: false
    property alias typedName: nameField.text
    /// It has been moved aside, all or some of the way.
    readonly property bool open: swipe.position !== 0
    /// How far from its place it is drawn, while rows are sorted.
    property real shift: 0
    property bool shiftAnimated: false

    signal deleted()
    signal typed(name: string)
    signal finished()
    signal cancelled()

    implicitHeight: FlatPalette.rowHeight
    focusPolicy: Qt.NoFocus
    leftPadding: FlatPalette.margin
    rightPadding: FlatPalette.margin
    Accessible.role: Accessible.ListItem
    Accessible.name: name
    onEditingChanged: if (!editing) swipe.close()
    swipe.enabled: !renaming

    transform: Translate {
        y: row.shift
        Behavior on y {
            enabled: row.shiftAnimated
            NumberAnimation { duration: 120 }
        }
    }

    swipe.transition: Transition {
        SmoothedAnimation { velocity: 3; easing.type: Easing.InOutCubic }
    }
    // qmllint disable unqualified
    swipe.right: Rectangle {
        objectName: "deleteButton"
        anchors.right: parent.right
        width: 88
        height: parent.height
        color: FlatPalette.alizarin
        Accessible.role: Accessible.Button
        Accessible.name: qsTranslate("Wayloom", "Delete") + " " + row.name
        Accessible.onPressAction: row.deleted()
        T.SwipeDelegate.onClicked: row.deleted()

        Text {
            anchors.centerIn: parent
            text: qsTranslate("Wayloom", "Delete")
            color: FlatPalette.clouds
            font.pixelSize: FlatPalette.bodySize
        }
    }
    // qmllint enable unqualified

    // Made with the row anyway, since the field's text is the row's.
    // qmllint disable deferred-property-id
    contentItem: Item {
        id: content

        Item {
            // Where it was before the swipe: the button comes over its end.
            x: row.leftPadding - content.x
            width: content.width - x
            height: content.height

            T.AbstractButton {
                objectName: "deleteMark"
                x: -FlatPalette.margin
                width: height
                height: parent.height
                visible: row.editing
                focusPolicy: Qt.NoFocus
                onClicked: row.swipe.complete ? row.swipe.close() : row.swipe.open(T.SwipeDelegate.Right)
                Accessible.name: qsTranslate("Wayloom", "Delete") + " " + row.name

                Rectangle {
                    anchors.centerIn: parent
                    width: 22
                    height: 22
                    radius: 11
                    color: FlatPalette.alizarin

                    Rectangle {
                        anchors.centerIn: parent
                        width: 10
                        height: 2
                        color: FlatPalette.clouds
                    }
                }
            }
            Text {
                objectName: "nameLabel"
                anchors.fill: parent
                anchors.leftMargin: row.editing ? parent.height - FlatPalette.margin : 0
                anchors.rightMargin: grip.visible ? grip.width : 0
                visible: !row.renaming
                text: row.name
                color: FlatPalette.rowText
                font.pixelSize: FlatPalette.titleSize
                verticalAlignment: Text.AlignVCenter
                elide: Text.ElideRight
                maximumLineCount: 1
                textFormat: Text.PlainText
                // Marks piled on a letter reach into other rows.
                clip: true
            }
            FlatTextField {
                id: nameField

                objectName: "nameField"
                anchors.fill: parent
                anchors.leftMargin: parent.height - FlatPalette.margin - leftPadding
                anchors.rightMargin: grip.width
                visible: row.renaming
                font.pixelSize: FlatPalette.titleSize
                onVisibleChanged: {
                    if (!visible)
                        return
                    forceActiveFocus()
                    if (text === row.name)
                        selectAll()
                }
                onTextEdited: row.typed(text)
                onEditingFinished: if (row.renaming) row.finished()
                Keys.onEscapePressed: row.cancelled()
                Keys.onBackPressed: row.cancelled()
                Accessible.name: qsTranslate("Wayloom", "Please Enter Favorites Name")
            }
            Column {
                id: grip

                objectName: "grip"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                width: FlatPalette.rowHeight - FlatPalette.margin
                leftPadding: width - 18
                spacing: 4
                visible: row.editing && row.swipe.position === 0

                Repeater {
                    model: 3

                    Rectangle {
                        width: 18
                        height: 2
                        color: FlatPalette.concrete
                    }
                }
            }
        }
    }
    // qmllint enable deferred-property-id

    background: Rectangle {
        color: row.down || row.current ? FlatPalette.current : FlatPalette.surface

        Rectangle {
            anchors.bottom: parent.bottom
            x: FlatPalette.margin
            width: parent.width - x
            height: 1
            color: FlatPalette.separator
        }
    }
}
