pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// A menu of the menu bar. Its items are created when it first opens.
PopupMenu {
    id: menu

    required property list<Command> commands

    leastWidth: 200
    x: mirrored && parent ? parent.width - width : 0 // begins where its title begins
    onAboutToShow: {
        items.model = commands.length;
        currentIndex = -1;
    }

    Repeater {
        id: items

        CommandItem {
            required property int index

            command: menu.commands[index]
        }
    }
}
