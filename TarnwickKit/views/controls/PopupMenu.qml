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

    /// Opens the menu as a context menu if the event is of one of the keys for that, at the head of a row or a pane.
    function openByKey(event: KeyEvent): void {
        if (event.key !== Qt.Key_Menu && !(event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier))
            return;
        popup(18, 30);
        event.accepted = true;
    }
}
