pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A square with a volume's symbol, in the colours of its connection.
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
