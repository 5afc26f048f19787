import QtQuick
import TarnwickKit.views

/// A button that is nothing but its words.
PlainButton {
    id: button

    property font textFont: Typeface.text(11, Font.Medium)
    property color textColor: PaletteKey.palette.text3

    corner: 4
    opacity: enabled ? 1 : 0.5

    contentItem: Text {
        text: button.label
        font: button.textFont
        color: button.textColor
        Accessible.ignored: true
    }
}
