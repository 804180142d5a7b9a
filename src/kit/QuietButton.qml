import QtQuick
import QtQuick.Templates as T

// A word to touch, without a ground of its own; one that can be checked is underlaid while it is.
T.Button {
    id: control

    implicitWidth: Math.max(FlatPalette.rowHeight, contentItem.implicitWidth + leftPadding + rightPadding)
    implicitHeight: FlatPalette.rowHeight
    leftPadding: 10
    rightPadding: 10
    font.pixelSize: FlatPalette.bodySize
    focusPolicy: Qt.StrongFocus
    Keys.onReturnPressed: control.click()
    Keys.onEnterPressed: control.click()
    opacity: enabled ? 1 : 0.5
    Accessible.name: text

    contentItem: Text {
        text: control.text
        font: control.font
        color: FlatPalette.accentText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
        elide: Text.ElideRight
    }

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.topMargin: 6
            anchors.bottomMargin: 6
            radius: FlatPalette.cornerRadius
            color: control.down ? FlatPalette.pressed : control.checked ? FlatPalette.current : "transparent"
            border.width: control.checked ? 1 : 0
            border.color: FlatPalette.turquoise
        }
        FocusRing {
            visible: control.visualFocus
            radius: FlatPalette.cornerRadius + 2
        }
    }
}
