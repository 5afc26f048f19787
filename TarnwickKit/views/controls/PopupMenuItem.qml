pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

BaseMenuItem {
    property bool destructive: false

    leastHeight: isHeading ? 24 : 28
    corner: 6
    textFont: isHeading ? Typeface.text(11, Font.DemiBold) : Typeface.text(13)
    keysFont: Typeface.text(12)
    ink: highlighted ? PaletteKey.palette.onAccent
        : isHeading ? PaletteKey.palette.text3
        : destructive ? PaletteKey.palette.danger : PaletteKey.palette.text
    symbolColor: highlighted ? ink : PaletteKey.palette.text2
    keysColor: highlighted ? ink : PaletteKey.palette.text2
    highlight: PaletteKey.palette.accent
}
