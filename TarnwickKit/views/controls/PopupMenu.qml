pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls
import TarnwickKit.views

/// A menu that drops from a control. Arrow keys move in it, Return chooses, Escape closes.
T.Menu {
    id: menu

    property real leastWidth: 120

    implicitWidth: Math.max(leastWidth, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: 8
    padding: 5
    overlap: 1
    cascade: false

    delegate: PopupMenuItem {}

    /// The keys that ask for a context menu open it at a row's or a pane's head.
    function openByKey(event: KeyEvent): void {
        if (event.key !== Qt.Key_Menu && !(event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier))
            return;
        popup(18, 30);
        event.accepted = true;
    }

    contentItem: ListView {
        implicitWidth: {
            let widest = 0;
            for (let i = 0; i < menu.count; ++i)
                widest = Math.max(widest, menu.itemAt(i).implicitWidth);
            return widest;
        }
        implicitHeight: contentHeight
        model: menu.contentModel
        currentIndex: menu.currentIndex
        interactive: contentHeight > height
        clip: interactive
        boundsBehavior: Flickable.StopAtBounds
    }
    background: Card {
        radius: 10
        color: PaletteKey.palette.panel
        outline: PaletteKey.palette.border
        shadowColor: PaletteKey.palette.shadow
        shadowRadius: 18
        shadowOffset: 8
    }
}
