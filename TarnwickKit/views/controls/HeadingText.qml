pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The title of a section.
PlainText {
    font: Typeface.display(14)
    color: PaletteKey.palette.heading
    Accessible.role: Accessible.Heading
}
