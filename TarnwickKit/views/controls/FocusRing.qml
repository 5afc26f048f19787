pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// Marks the control that the keyboard would act on.
Card {
    required property real corner

    radius: corner
    outlineWidth: 2
    outline: PaletteKey.palette.teal
}
