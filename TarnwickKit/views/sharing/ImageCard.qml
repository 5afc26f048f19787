pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A card that is shared as an image: a column of items, with a transparent margin around.
Item {
    id: view

    /// Written from right to left.
    required property bool isMirrored
    default property alias content: pieces.data
    readonly property real margin: 24
    readonly property real corner: 16

    width: 760 + 2 * margin
    height: pieces.height + 2 * margin
    LayoutMirroring.enabled: isMirrored
    LayoutMirroring.childrenInherit: true

    Card {
        x: view.margin
        y: view.margin
        width: 760
        height: pieces.height
        radius: view.corner
        color: PaletteKey.palette.panel

        Column {
            id: pieces

            width: parent.width
        }
        // The outline, above items that reach the card's edges.
        Card {
            anchors.fill: parent
            radius: view.corner
            outline: PaletteKey.palette.border
        }
    }
}
