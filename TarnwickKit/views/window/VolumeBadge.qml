pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The volume's square: its symbol on the colours of how it is attached.
Card {
    id: badge

    property alias symbol: glyph.name
    property alias symbolSize: glyph.size
    property alias symbolWeight: glyph.weight

    implicitWidth: ViewMetrics.badgeSide
    implicitHeight: ViewMetrics.badgeSide
    radius: 8
    outline: Qt.rgba(1, 1, 1, 0.18)

    Symbol {
        id: glyph

        anchors.centerIn: parent
        size: 14
        weight: Font.Medium
        color: "white"
    }
}
