pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A tip in the colours of its owner.
Tip {
    required property Item owner

    parent: owner
    fill: owner.PaletteKey.palette.panel
    ink: owner.PaletteKey.palette.text
    outline: owner.PaletteKey.palette.border
    shadowColor: owner.PaletteKey.palette.shadow
    textFont: Typeface.text(11.5)
}
