import QtQuick
import QtQuick.Templates as T

// A flat button on a darker edge that it sinks into while pressed.
T.Button {
    id: control

    property color buttonColor: FlatPalette.turquoise
    property color shadowColor: FlatPalette.greenSea
    property color titleColor: FlatPalette.clouds
    property int shadowHeight: 3
    property int cornerRadius: FlatPalette.cornerRadius

    implicitWidth: Math.max(64, contentItem.implicitWidth + leftPadding + rightPadding)
    implicitHeight: FlatPalette.controlHeight
    leftPadding: 12
    rightPadding: 12
    bottomPadding: down ? 0 : shadowHeight
    topPadding: down ? shadowHeight : 0
    font.pixelSize: 16
    focusPolicy: Qt.StrongFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    opacity: enabled ? 1 : 0.5
    Accessible.name: text

    contentItem: Text {
        text: control.text
        font: control.font
        color: control.titleColor
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
        elide: Text.ElideRight
    }

    background: Rectangle {
        radius: control.cornerRadius
        color: control.shadowColor

        Rectangle {
            y: control.down ? control.shadowHeight : 0
            width: parent.width
            height: parent.height - control.shadowHeight
            radius: control.cornerRadius
            color: control.hovered ? Qt.lighter(control.buttonColor, 1.05) : control.buttonColor
        }

        FocusRing {
            visible: control.visualFocus
            radius: control.cornerRadius + 2
        }
    }
}
