pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// The menu of a setting's values.
PopupMenu {
    id: menu

    required property PlainButton button
    required property SettingMenu setting

    parent: button
    x: button.width - width
    y: button.height + 4
    onOpened: currentIndex = setting.current

    Repeater {
        model: menu.setting.options

        PopupMenuItem {
            required property int index
            required property string modelData

            text: modelData
            checkable: true
            chosen: index === menu.setting.current
            onTriggered: menu.setting.chosen(index)
        }
    }
}
