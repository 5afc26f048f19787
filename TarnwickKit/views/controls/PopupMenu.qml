pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A menu in the window's colours.
BaseMenu {
    id: menu

    leastWidth: 120
    fill: PaletteKey.palette.panel
    outline: PaletteKey.palette.border
    shadowColor: PaletteKey.palette.shadow

    delegate: PopupMenuItem {}
}
