pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// The product's colours as the palette of standard controls.
Palette {
    required property ColorPalette colors

    window: colors.bg
    windowText: colors.text
    base: colors.panel
    alternateBase: colors.panel2
    text: colors.text
    button: colors.panel2
    buttonText: colors.text
    highlight: colors.accent
    highlightedText: colors.onAccent
    placeholderText: colors.text2
    link: colors.link
    mid: colors.border
    midlight: colors.borderSoft
    toolTipBase: colors.panel
    toolTipText: colors.text
}
