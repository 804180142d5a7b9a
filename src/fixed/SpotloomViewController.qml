import QtQuick
import Wayloom.Kit
import Wayloom.Map

Item {
    FlatButton { text: "hello" }
    MapView { anchors.fill: parent }
}
