pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A dot with a soft halo.
Item {
    property alias color: dot.color

    implicitWidth: 9
    implicitHeight: 9

    Card {
        anchors.centerIn: parent
        width: 13 * 1.6
        height: width
        radius: width / 2
        outline: PaletteKey.palette.tealSoft
        outlineWidth: 4 * 1.6
    }
    Card {
        id: dot

        anchors.fill: parent
        radius: width / 2
    }
}
