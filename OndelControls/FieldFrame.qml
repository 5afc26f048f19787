pragma ComponentBehavior: Bound

import QtQuick
import OndelControls

/// The frame of a text field, which marks the keyboard focus.
Card {
    required property bool focused

    radius: Metrics.fieldCorner
    color: palette.base
    outline: focused ? palette.highlight : palette.mid
    outlineWidth: focused ? Metrics.focusLine : 1
}
