pragma ComponentBehavior: Bound

import QtQuick
import OndelControls

/// The track and the knob of a switch.
Card {
    id: track

    required property bool on
    property bool moves: true
    readonly property bool isMirrored: LayoutMirroring.enabled
    property color activeColor: palette.highlight
    property color idleColor: palette.mid
    property color activeKnob: palette.highlightedText
    property color idleKnob: palette.base

    implicitWidth: 34
    implicitHeight: 20
    radius: height / 2
    color: on ? activeColor : idleColor

    Card {
        x: track.on !== track.isMirrored ? track.width - width - 2 : 2
        anchors.verticalCenter: parent.verticalCenter
        width: 16
        height: 16
        radius: 8
        color: track.on ? track.activeKnob : track.idleKnob

        Behavior on x {
            enabled: track.moves

            NumberAnimation {
                duration: Metrics.switchTime
                easing.type: Easing.InOutQuad
            }
        }
    }
}
