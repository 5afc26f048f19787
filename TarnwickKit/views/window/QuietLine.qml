pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A sentence at the foot of the window, which its owner removes after a while.
Card {
    id: line

    required property string sentence
    required property real greatestWidth

    implicitWidth: Math.min(words.implicitWidth + 28, greatestWidth)
    implicitHeight: words.height + 20
    radius: Metrics.menuCorner
    color: PaletteKey.palette.panel
    outline: PaletteKey.palette.border
    shadowColor: PaletteKey.palette.shadow
    shadowRadius: Metrics.menuShadow
    shadowOffset: Metrics.menuShadowOffset
    Accessible.role: Accessible.AlertMessage
    Accessible.name: sentence

    PlainText {
        id: words

        x: 14
        y: 10
        width: line.width - 28
        text: line.sentence
        font: Typeface.text(13)
        color: PaletteKey.palette.text
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
