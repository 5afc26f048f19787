pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// A scroll bar.
T.ScrollBar {
    id: bar

    property real corner: 2
    property color ink: palette.placeholderText
    property real restOpacity: 0.35
    property real activeOpacity: 0.7
    property real pressedOpacity: activeOpacity

    implicitWidth: 2 * (corner + padding)
    padding: 2
    visible: size < 1

    contentItem: Card {
        radius: bar.corner
        color: bar.ink
        opacity: bar.pressed ? bar.pressedOpacity : bar.active || bar.hovered ? bar.activeOpacity : bar.restOpacity
    }
}
