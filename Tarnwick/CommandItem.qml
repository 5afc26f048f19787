pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The menu item of a command. The first one of a group has a separator above it.
PopupMenuItem {
    id: item

    required property Command command

    // Not through the item's `action`, which ignores the press action of assistive technology.
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
