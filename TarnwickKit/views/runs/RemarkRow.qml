pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A remark: its weight as a symbol and a word, what was seen, and what to do about it.
Row {
    id: row

    required property remarkItem remark

    spacing: 8
    Accessible.role: Accessible.StaticText
    Accessible.name: remark.word + ": " + remark.sentence + (remark.advice === "" ? "" : " " + remark.advice)

    Symbol {
        anchors.verticalCenter: word.verticalCenter
        width: ViewMetrics.markSide
        height: ViewMetrics.markSide
        name: row.remark.symbol
        size: 12
        color: [row.PaletteKey.palette.text3, row.PaletteKey.palette.warning, row.PaletteKey.palette.coralink][row.remark.weight]
    }
    PlainText {
        id: word

        width: ViewMetrics.weightWidth
        text: row.remark.word
        font: Typeface.text(12, Font.Medium)
        color: row.PaletteKey.palette.text2
        Accessible.ignored: true
    }
    Column {
        width: row.width - ViewMetrics.markSide - word.width - 2 * row.spacing
        spacing: 1

        PlainText {
            width: parent.width
            text: row.remark.sentence
            wrapMode: Text.Wrap
            font: Typeface.text(12)
            color: row.PaletteKey.palette.text
            Accessible.ignored: true
        }
        PlainText {
            width: parent.width
            visible: text !== ""
            text: row.remark.advice
            wrapMode: Text.Wrap
            font: Typeface.text(12)
            color: row.PaletteKey.palette.text2
            Accessible.ignored: true
        }
    }
}
