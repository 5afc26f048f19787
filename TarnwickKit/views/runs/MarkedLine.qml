pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// Says in one line of an image what its marks mean.
Row {
    id: line

    required property string words
    required property real room

    spacing: 6

    FigureMark {
        anchors.verticalCenter: text.verticalCenter
    }
    PlainText {
        id: text

        width: Math.min(implicitWidth, line.room - ViewMetrics.markSide - line.spacing)
        text: line.words
        font: Typeface.text(12)
        color: line.PaletteKey.palette.text2
        elide: Text.ElideRight
    }
}
