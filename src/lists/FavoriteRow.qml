import QtQuick
import QtQuick.Templates as T
import Wayloom.Kit

// One favourite: its name, and behind it, after a swipe to the left, the delete button.
T.SwipeDelegate {
    id: row

    required property int index
    required property string name
    property bool editing: false
    property bool current: false

    signal deleted()

    implicitHeight: FlatPalette.rowHeight
    focusPolicy: Qt.NoFocus
    leftPadding: FlatPalette.margin
    rightPadding: FlatPalette.margin
    Accessible.role: Accessible.ListItem
    Accessible.name: name
    onEditingChanged: if (!editing) swipe.close()

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

    contentItem: Item {
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
            anchors.left: parent.left
            anchors.leftMargin: row.editing ? parent.height - FlatPalette.margin : 0
            anchors.right: parent.right
            height: parent.height
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
    }

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
