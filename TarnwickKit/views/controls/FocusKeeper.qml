pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

/// Returns the keyboard focus to the control that had it before a menu, an alert or a note took it, which Qt does not do.
/// Emits `lost` if that control is gone, hidden or disabled.
Item {
    id: keeper

    readonly property Item focusItem: Window.activeFocusItem
    readonly property Item root: Window.contentItem
    readonly property Item popups: T.Overlay.overlay
    /// What disappears by itself: the focus returns from there as it does from popups.
    property Item passing: null
    /// The control outside of all of these that has, or last had, the keyboard focus.
    property Item last: null

    signal lost

    function isWithin(item: Item, place: Item): bool {
        let ancestor = item;
        while (ancestor && ancestor !== place)
            ancestor = ancestor.parent;
        return ancestor !== null && ancestor === place;
    }
    function giveBack(): void {
        if (focusItem && focusItem !== root)
            return;
        if (last && isWithin(last, root) && last.visible && last.enabled)
            last.forceActiveFocus(Qt.TabFocusReason);
        else
            lost();
    }

    onFocusItemChanged: {
        if (!focusItem || focusItem === root)
            afterwards.restart();
        else if (!isWithin(focusItem, popups) && !isWithin(focusItem, passing))
            last = focusItem;
    }

    Timer {
        id: afterwards

        interval: 0
        onTriggered: keeper.giveBack()
    }
}
