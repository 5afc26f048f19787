pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A button without a background: its label only.
PlainButton {
    id: button

    property font textFont: Typeface.text(11, Font.Medium)
    property color textColor: PaletteKey.palette.text3

    corner: 4

    contentItem: PlainText {
        text: button.label
        font: button.textFont
        color: button.hovered ? PaletteKey.palette.text : button.textColor
        Accessible.ignored: true
    }
}
