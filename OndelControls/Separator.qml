pragma ComponentBehavior: Bound

import OndelControls

/// A line one logical pixel wide, aligned to device pixels.
Card {
    implicitWidth: 1
    implicitHeight: 1
    outlineWidth: 0
}
