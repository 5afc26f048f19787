pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A text that explains a setting.
BodyText {
    font: Typeface.text(12)
    color: PaletteKey.palette.text2
}
