pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A tinted strip in a card. As the last item of the card it rounds its lower corners by the card's radius.
Item {
    id: foot

    property real corner: 0

    clip: true

    Card {
        y: -foot.corner
        width: foot.width
        height: foot.height + foot.corner
        radius: foot.corner
        color: PaletteKey.palette.panel2
    }
}
