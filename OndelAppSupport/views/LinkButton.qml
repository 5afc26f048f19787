pragma ComponentBehavior: Bound

import QtQuick
import OndelControls

/// A link.
BaseButton {
    id: link

    property real textSize: Metrics.captionSize

    corner: 1
    verticalPadding: Math.max(0, (Metrics.leastTarget - implicitContentHeight) / 2)
    cursorShape: Qt.PointingHandCursor
    dimsWhenInactive: false
    Accessible.role: Accessible.Link

    contentItem: PlainText {
        text: link.label
        font.pixelSize: link.textSize
        font.underline: link.hovered || link.visualFocus
        color: link.palette.link
        opacity: link.pressed ? 0.6 : 1
        Accessible.ignored: true
    }
}
