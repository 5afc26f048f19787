pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// When a run was made.
PlainText {
    font: Typeface.mono(11.5)
    color: PaletteKey.palette.text3
    elide: Text.ElideRight
}
