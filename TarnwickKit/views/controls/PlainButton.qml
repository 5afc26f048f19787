pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The base of the window's buttons, in its colours.
BaseButton {
    id: button

    cursorShape: Qt.PointingHandCursor
    focusColor: PaletteKey.palette.teal

    tip: HoverTip {
        owner: button
        text: button.hint
    }
}
