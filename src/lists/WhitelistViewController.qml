import QtQuick
import Wayloom.Kit
import Wayloom.Screens as Screens

// The whitelist screen: the installed applications under a title bar.
FocusScope {
    id: root

    required property Screens.WhitelistViewController controller

    focus: true

    Rectangle {
        anchors.fill: parent
        color: FlatPalette.surface
    }

    TitleBar {
        id: titleBar

        title: qsTranslate("Wayloom", "White List")

        TitleBarButton {
            id: backButton

            objectName: "backButton"
            anchors.left: parent.left
            text: qsTranslate("Wayloom", "Done")
            onClicked: root.controller.done()
        }
        Text {
            id: countLabel

            objectName: "countLabel"
            anchors.right: parent.right
            anchors.rightMargin: FlatPalette.margin
            anchors.verticalCenter: parent.verticalCenter
            width: FlatPalette.barButtonWidth + FlatPalette.margin
            visible: root.controller.hasApplications
            text: root.controller.countText
            color: FlatPalette.secondaryText
            font.pixelSize: FlatPalette.captionSize
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: FlatPalette.smallSize
            horizontalAlignment: Text.AlignRight
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }
    }

    Rectangle {
        id: filterBar

        anchors.top: titleBar.bottom
        width: parent.width
        height: visible ? FlatPalette.rowHeight + FlatPalette.spacing : 0
        visible: root.controller.hasApplications
        color: FlatPalette.surface
        z: 1

        FlatTextField {
            id: soughtField

            objectName: "soughtField"
            anchors.left: parent.left
            anchors.leftMargin: FlatPalette.margin
            anchors.right: tickedOnlyButton.left
            anchors.rightMargin: FlatPalette.spacing
            anchors.verticalCenter: parent.verticalCenter
            height: FlatPalette.rowHeight
            placeholderText: qsTranslate("Wayloom", "Find an application")
            onTextChanged: root.controller.soughtText = text
            onAccepted: mainTableView.forceActiveFocus()
            Keys.onEscapePressed: event => {
                // Emptied first; the next one leaves the screen.
                event.accepted = text.length > 0
                clear()
            }
            Keys.onDownPressed: mainTableView.forceActiveFocus()
        }
        QuietButton {
            id: tickedOnlyButton

            objectName: "tickedOnlyButton"
            anchors.right: setsButton.left
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, 130)
            checkable: true
            checked: root.controller.tickedOnly
            text: qsTranslate("Wayloom", "Ticked only")
            onToggled: root.controller.tickedOnly = checked
            Accessible.checkable: true
            Accessible.checked: checked
        }
        QuietButton {
            id: setsButton

            objectName: "setsButton"
            anchors.right: parent.right
            anchors.rightMargin: 2
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, 100)
            text: qsTranslate("Wayloom", "Sets")
            onClicked: {
                root.controller.readSets()
                setsPanel.open()
            }
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: FlatPalette.separator
        }
    }

    FlatListView {
        id: mainTableView

        objectName: "mainTableView"
        anchors.fill: parent
        anchors.topMargin: titleBar.height + filterBar.height
        model: root.controller.appArray
        Accessible.name: titleBar.title

        Keys.onSpacePressed: root.controller.didSelectRow(currentIndex)
        Keys.onReturnPressed: root.controller.didSelectRow(currentIndex)
        Keys.onEnterPressed: root.controller.didSelectRow(currentIndex)

        // qmllint disable unqualified
        delegate: WhitelistRow {
            width: ListView.view.width
            current: ListView.isCurrentItem && mainTableView.activeFocus
            onClicked: root.controller.didSelectRow(index)
        }
        // qmllint enable unqualified
    }

    StatusLine {
        anchors.bottom: parent.bottom
        width: parent.width
        text: root.controller.statusText
    }

    EmptyNote {
        objectName: "emptyNote"
        anchors.centerIn: mainTableView
        visible: mainTableView.count === 0
        text: root.controller.hasApplications ? qsTranslate("Wayloom", "Nothing found")
                                              : qsTranslate("Wayloom", "No applications found")
        hint: root.controller.hasApplications
            ? "" : qsTranslate("Wayloom", "Applications that are installed on this device appear here.")
    }

    SetsPanel {
        id: setsPanel

        objectName: "setsPanel"
        z: 2
        controller: root.controller
        onClosed: mainTableView.forceActiveFocus()
    }
}
