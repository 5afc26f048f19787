pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The former checks; a press shows one.
Column {
    id: list

    required property LiveCheck check

    Separator {
        width: list.width
        color: PaletteKey.palette.borderSoft
    }
    HeadingText {
        x: ViewMetrics.cardPadding
        topPadding: 14
        bottomPadding: 4
        text: qsTr("Former checks")
    }
    Repeater {
        model: list.check.checks

        FormerCheck {
            width: list.width
            onClicked: list.check.show(index)
        }
    }
    Item {
        width: 1
        height: 10
    }
}
