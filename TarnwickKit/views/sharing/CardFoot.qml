pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A tinted strip in a card. As the card's last piece it has the card's radius as its own, in the lower corners.
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
