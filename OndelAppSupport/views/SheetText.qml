pragma ComponentBehavior: Bound

import QtQuick
import OndelControls

/// A text of a sheet or a panel.
PlainText {
    property bool secondary: false

    font.pixelSize: 13
    color: secondary ? palette.placeholderText : palette.windowText
    wrapMode: Text.Wrap
}
