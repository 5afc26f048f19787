pragma ComponentBehavior: Bound

import QtQuick
import OndelControls

/// The frame of what is typed into, which shows whether it has the keyboard's focus.
Card {
    required property bool focused

    radius: Metrics.fieldCorner
    color: palette.base
    outline: focused ? palette.highlight : palette.mid
    outlineWidth: focused ? Metrics.focusLine : 1
}
