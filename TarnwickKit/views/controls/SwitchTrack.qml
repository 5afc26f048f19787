pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The picture of a switch.
Card {
    id: track

    required property bool on

    implicitWidth: 34
    implicitHeight: 20
    radius: 10
    color: on ? PaletteKey.palette.accent : PaletteKey.palette.track

    Card {
        x: track.on ? track.width - width - 2 : 2
        anchors.verticalCenter: parent.verticalCenter
        width: 16
        height: 16
        radius: 8
        color: track.on ? PaletteKey.palette.onAccent : PaletteKey.palette.panel

        Behavior on x {
            NumberAnimation {
                duration: 120
                easing.type: Easing.InOutQuad
            }
        }
    }
}
