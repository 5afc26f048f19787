pragma ComponentBehavior: Bound

import OndelControls

/// A hairline of one logical pixel, on whole device pixels.
Card {
    implicitWidth: 1
    implicitHeight: 1
    outlineWidth: 0
}
