pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls
import TarnwickKit.views

/// A vertical scroll area. It scrolls to the control that gets the keyboard focus, and keeps the focus in its content when
/// that control is deleted. Arrow and page keys, Home and End scroll it wherever the focus is in it.
Flickable {
    id: pane

    default property alias content: holder.data
    required property FocusKeeper keeper
    readonly property Item focusItem: keeper.last

    contentWidth: width
    contentHeight: holder.childrenRect.height
    boundsBehavior: Flickable.StopAtBounds
    flickableDirection: Flickable.VerticalFlick
    clip: true
    interactive: contentHeight > height

    /// The position of the focused control in the content; -1 while the focus is elsewhere.
    property real focusPlace: -1

    function goToTop(): void {
        contentY = 0;
        focusPlace = Math.min(focusPlace, 0);
    }

    onFocusItemChanged: {
        if (holds(focusItem)) {
            focusPlace = focusItem.mapToItem(holder, 0, 0).y;
            reveal();
        } else if (focusItem) {
            focusPlace = -1;
        }
    }
    Connections {
        target: pane.keeper

        // The focused control is gone, for example a deleted row. The focus moves to the control now in its place.
        function onLost(): void {
            if (pane.focusPlace >= 0)
                pane.catchFocus();
        }
    }

    function holds(item: Item): bool {
        let ancestor = item;
        while (ancestor && ancestor !== holder)
            ancestor = ancestor.parent;
        return ancestor === holder;
    }

    function catchFocus(): void {
        let found = null;
        for (let item = holder.nextItemInFocusChain(); holds(item); item = item.nextItemInFocusChain()) {
            found = item;
            if (item.mapToItem(holder, 0, item.height).y > focusPlace + 1)
                break;
        }
        if (found)
            found.forceActiveFocus(Qt.TabFocusReason);
    }

    function scrollBy(distance: real): void {
        contentY = Math.max(0, Math.min(contentHeight - height, contentY + distance));
    }

    Keys.onUpPressed: scrollBy(-Metrics.scrollStep)
    Keys.onDownPressed: scrollBy(Metrics.scrollStep)
    Keys.onPressed: event => {
        const distances = {
            [Qt.Key_PageUp]: Metrics.scrollStep - height,
            [Qt.Key_PageDown]: height - Metrics.scrollStep,
            [Qt.Key_Home]: -contentHeight,
            [Qt.Key_End]: contentHeight
        };
        event.accepted = event.key in distances;
        if (event.accepted)
            scrollBy(distances[event.key]);
    }

    function reveal(): void {
        const margin = 12;
        const top = focusItem.mapToItem(holder, 0, 0).y - margin;
        const bottom = top + focusItem.height + 2 * margin;
        if (top < contentY || focusItem.height > height)
            contentY = Math.max(0, Math.min(top, contentHeight - height));
        else if (bottom > contentY + height)
            contentY = Math.max(0, Math.min(bottom, contentHeight) - height);
    }

    Item {
        id: holder

        width: pane.width
        height: childrenRect.height
    }

    T.ScrollBar.vertical: ScrollMark {
        minimumSize: 0.08
        corner: 3
        ink: pane.PaletteKey.palette.text3
        restOpacity: 0.2
        activeOpacity: 0.5
        pressedOpacity: 0.8
        Accessible.ignored: true
    }
}
