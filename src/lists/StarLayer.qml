import QtQuick
import Wayloom.Kit
import Wayloom.Map

// The favourites in view as small stars over a map. A drag that begins on a star moves the map.
Item {
    id: overlay

    required property MapView map
    required property var stars

    /// `place` is where the star stands.
    signal chosen(int row, point place, string name)

    /// More names than these would cover the map.
    readonly property int mostNames: 12
    property int frame: 0

    objectName: "starLayer"
    clip: true

    Connections {
        target: overlay.map
        function onCameraMoved() { ++overlay.frame }
    }

    Repeater {
        id: repeater

        model: overlay.stars

        // qmllint disable unqualified
        delegate: Item {
            id: star

            required property int index
            required property string name
            required property point place

            readonly property point at: overlay.frame >= 0 ? overlay.map.pointOf(place) : Qt.point(0, 0)

            objectName: "star"
            x: at.x - width / 2
            y: at.y - height / 2
            width: 36
            height: 36
            Accessible.role: Accessible.Button
            Accessible.name: name
            Accessible.onPressAction: overlay.chosen(index, place, name)

            HoverHandler { id: hover }
            TapHandler { onTapped: overlay.chosen(star.index, star.place, star.name) }

            Image {
                anchors.centerIn: parent
                source: "qrc:/icons/star.svg"
                sourceSize.width: 22
                sourceSize.height: 22
            }
            Text {
                anchors.top: parent.bottom
                anchors.topMargin: -6
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(implicitWidth, 140)
                visible: repeater.count <= overlay.mostNames || hover.hovered
                text: star.name
                // The map is light in every appearance.
                color: FlatPalette.midnightBlue
                style: Text.Outline
                styleColor: "#e6ffffff"
                font.pixelSize: FlatPalette.captionSize
                elide: Text.ElideRight
                maximumLineCount: 1
                textFormat: Text.PlainText
            }
        }
        // qmllint enable unqualified
    }
}
