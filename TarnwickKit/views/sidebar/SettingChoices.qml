pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The menu of a setting's values.
PopupMenu {
    id: choices

    required property PlainButton button
    required property SettingMenu setting

    parent: button
    x: button.mirrored ? 0 : button.width - width
    y: button.height + Metrics.menuGap
    onAboutToShow: (contentItem as ListView).forceLayout()
    onOpened: currentIndex = setting.current

    Repeater {
        model: choices.setting.options

        PopupMenuItem {
            required property int index
            required property string modelData

            text: modelData
            checkable: true
            chosen: index === choices.setting.current
            onTriggered: choices.setting.chosen(index)
        }
    }
}
