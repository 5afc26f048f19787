pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

PlainButton {
    id: button

    property bool prominent: false
    property bool destructive: false

    leftPadding: 16
    rightPadding: 16
    topPadding: 7
    bottomPadding: 7

    contentItem: PlainText {
        text: button.label
        font: Typeface.text(13, Font.DemiBold)
        color: button.prominent && !button.destructive ? PaletteKey.palette.onAccent
                                                       : button.destructive ? PaletteKey.palette.panel : PaletteKey.palette.text
        Accessible.ignored: true
    }
    background: Card {
        radius: button.corner
        color: button.destructive ? PaletteKey.palette.danger
                                  : button.prominent ? PaletteKey.palette.accent : PaletteKey.palette.panel2
        outline: button.prominent ? "transparent" : PaletteKey.palette.border
    }
}
