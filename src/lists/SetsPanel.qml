import QtQuick
import QtQuick.Templates as T
import Wayloom.Kit
import Wayloom.Screens as Screens

// The whitelist's sets: touch one to tick what it ticks, or keep the ticks as they are as a new one.
FocusScope {
    id: panel

    required property Screens.WhitelistViewController controller
    property bool shown: false

    signal closed()

    function open() {
        nameField.clear()
        shown = true
        nameField.forceActiveFocus()
    }
    function save() {
        if (controller.saveSet(nameField.text))
            nameField.clear()
    }

    anchors.fill: parent
    visible: shown
    onShownChanged: if (!shown) closed()
    Keys.onEscapePressed: shown = false
    Keys.onBackPressed: shown = false

    Rectangle {
        anchors.fill: parent
        color: FlatPalette.shade

        MouseArea {
            anchors.fill: parent
            onClicked: panel.shown = false
            onWheel: wheel => wheel.accepted = true
        }
    }

    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 24, 420)
        height: column.implicitHeight + 32
        radius: 6
        color: FlatPalette.surface

        MouseArea {
            anchors.fill: parent
        }
        Column {
            id: column

            anchors.centerIn: parent
            width: parent.width - 32
            spacing: FlatPalette.spacing

            Text {
                width: parent.width
                text: qsTranslate("Wayloom", "Sets")
                color: FlatPalette.text
                font.pixelSize: FlatPalette.titleSize
                font.bold: true
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Text {
                width: parent.width
                visible: setsView.count === 0
                text: qsTranslate("Wayloom", "Keep the ticks as they are under a name, and take them back later.")
                color: FlatPalette.secondaryText
                font.pixelSize: FlatPalette.bodySize
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
            FlatListView {
                id: setsView

                objectName: "setsView"
                width: parent.width
                height: Math.min(contentHeight, Math.max(FlatPalette.rowHeight, panel.height - 260))
                model: panel.controller.setNames
                reuseItems: false
                Keys.onReturnPressed: use(currentIndex)
                Keys.onEnterPressed: use(currentIndex)
                Keys.onDeletePressed: panel.controller.removeSet(currentIndex)

                function use(number: int) {
                    panel.controller.useSet(number)
                    panel.shown = false
                }

                // qmllint disable unqualified
                delegate: Item {
                    id: row

                    required property int index
                    required property string modelData

                    width: ListView.view.width
                    height: FlatPalette.rowHeight

                    T.AbstractButton {
                        id: useButton

                        objectName: "useButton"
                        anchors.fill: parent
                        anchors.rightMargin: FlatPalette.rowHeight
                        focusPolicy: Qt.NoFocus
                        Accessible.name: row.modelData
                        onClicked: setsView.use(row.index)
                        contentItem: Text {
                            text: row.modelData
                            color: FlatPalette.rowText
                            font.pixelSize: FlatPalette.titleSize
                            leftPadding: FlatPalette.spacing
                            verticalAlignment: Text.AlignVCenter
                            elide: Text.ElideRight
                            maximumLineCount: 1
                            textFormat: Text.PlainText
                            clip: true
                        }
                        background: Rectangle {
                            readonly property bool current: row.ListView.isCurrentItem && setsView.activeFocus

                            color: useButton.down || current ? FlatPalette.current : "transparent"
                        }
                    }
                    T.AbstractButton {
                        objectName: "removeButton"
                        anchors.right: parent.right
                        width: FlatPalette.rowHeight
                        height: FlatPalette.rowHeight
                        focusPolicy: Qt.NoFocus
                        Accessible.name: qsTranslate("Wayloom", "Delete") + " " + row.modelData
                        onClicked: panel.controller.removeSet(row.index)

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
                    Rectangle {
                        anchors.bottom: parent.bottom
                        width: parent.width
                        height: 1
                        color: FlatPalette.separator
                    }
                }
                // qmllint enable unqualified
            }
            Row {
                width: parent.width
                spacing: FlatPalette.spacing

                FlatTextField {
                    id: nameField

                    objectName: "setNameField"
                    width: parent.width - saveButton.width - parent.spacing
                    height: FlatPalette.rowHeight
                    maximumLength: 60
                    placeholderText: qsTranslate("Wayloom", "Name of the set")
                    onAccepted: panel.save()
                }
                FlatButton {
                    id: saveButton

                    objectName: "saveSetButton"
                    width: 90
                    height: FlatPalette.rowHeight
                    enabled: nameField.text.trim().length > 0
                    text: qsTranslate("Wayloom", "Save")
                    onClicked: panel.save()
                }
            }
            StatusLine {
                width: parent.width
                visible: text.length > 0
                text: panel.controller.statusText
            }
            QuietButton {
                objectName: "setsCloseButton"
                anchors.horizontalCenter: parent.horizontalCenter
                text: qsTranslate("Wayloom", "Close")
                onClicked: panel.shown = false
            }
        }
    }
}
