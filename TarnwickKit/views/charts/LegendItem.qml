pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A series' colour and what it stands for.
Row {
    id: item

    required property color color
    required property string label

    spacing: 6

    Card {
        anchors.verticalCenter: parent.verticalCenter
        width: 11
        height: 3
        radius: 1.5
        color: item.color
    }
    PlainText {
        text: item.label
        font: Typeface.text(12)
        color: PaletteKey.palette.text2
        Accessible.ignored: true
    }
}
