import QtQuick
import TarnwickKit.views

/// A dot with a soft halo.
Item {
    property alias color: dot.color

    implicitWidth: 9
    implicitHeight: 9

    Rectangle {
        anchors.centerIn: parent
        width: 13 * 1.6
        height: width
        radius: width / 2
        color: "transparent"
        border.width: 4 * 1.6
        border.color: PaletteKey.palette.tealSoft
    }
    Rectangle {
        id: dot

        anchors.fill: parent
        radius: 4.5
    }
}
