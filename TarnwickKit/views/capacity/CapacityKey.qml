pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A line of the legend: a cell in one state, what it means, and how much of the range is in it.
Row {
    id: key

    required property cellKind kind

    spacing: 6
    Accessible.role: Accessible.StaticText
    Accessible.name: qsTr("%1: %2").arg(kind.name).arg(kind.amount)

    CapacityMap {
        anchors.verticalCenter: parent.verticalCenter
        width: 12
        height: 12
        cells: key.kind.cell
    }
    PlainText {
        text: key.kind.name
        font: Typeface.text(12)
        color: PaletteKey.palette.text2
        Accessible.ignored: true
    }
    PlainText {
        text: key.kind.amount
        font: Typeface.mono(11)
        color: PaletteKey.palette.text
        Accessible.ignored: true
    }
}
