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
    ink: isHeading ? PaletteKey.palette.text3 : destructive ? PaletteKey.palette.coralink : PaletteKey.palette.text
    symbolColor: PaletteKey.palette.text2
    keysColor: PaletteKey.palette.text3
    highlight: PaletteKey.palette.tealSoft
}
