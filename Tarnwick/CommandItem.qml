pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A command in its menu. The first one of a group has a rule above it.
PopupMenuItem {
    id: item

    required property Command command

    // Not as the item's action: that is deaf to assistive technology.
    text: command.text
    enabled: command.enabled
    onTriggered: command.trigger()
    keys: command.keys
    topInset: command.beginsGroup ? 11 : 0
    topPadding: topInset + verticalPadding

    Separator {
        visible: item.command.beginsGroup
        y: 5
        width: item.width
        color: PaletteKey.palette.borderSoft
    }
}
