pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A small square button with a symbol.
PlainButton {
    id: button

    property alias symbol: glyph.name
    property alias symbolSize: glyph.size

    hint: label
    detail: hint === label ? "" : hint
    implicitWidth: 30
    implicitHeight: 30

    background: Card {
        radius: button.corner
        color: PaletteKey.palette.panel2
        outline: button.frameColor
    }
    contentItem: Symbol {
        id: glyph

        size: 11
        color: button.hovered ? PaletteKey.palette.text : PaletteKey.palette.text2
    }
}
