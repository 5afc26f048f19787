pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A button with a symbol and a label, for an action beside figures.
PlainButton {
    id: button

    required property string symbol ///< "" for none

    corner: 7
    leftPadding: 10
    rightPadding: 10
    topPadding: 5
    bottomPadding: 5

    background: Card {
        radius: button.corner
        color: PaletteKey.palette.panel
        outline: button.frameColor
    }
    contentItem: Row {
        spacing: 5

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: name.length > 0
            name: button.symbol
            size: 12
            color: PaletteKey.palette.text2
        }
        PlainText {
            text: button.label
            font: Typeface.text(12)
            color: PaletteKey.palette.text2
            Accessible.ignored: true
        }
    }
}
