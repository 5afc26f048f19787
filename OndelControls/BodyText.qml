pragma ComponentBehavior: Bound

import QtQuick
import OndelControls

/// A text that wraps, in the size and the colors of a window's controls.
PlainText {
    property bool secondary: false

    font.pixelSize: Metrics.textSize
    color: secondary ? palette.placeholderText : palette.windowText
    wrapMode: Text.Wrap
}
