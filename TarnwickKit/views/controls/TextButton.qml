pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A button without a background: its label only. The area to press is larger than the label, and extends over the
/// gaps to what stands beside it.
PlainButton {
    id: button

    property font textFont: Typeface.text(11, Font.Medium)
    property color textColor: PaletteKey.palette.text3

    corner: 4
    horizontalPadding: Math.max(0, (Metrics.leastTarget - implicitContentWidth) / 2)
    verticalPadding: Math.max(0, (Metrics.leastTarget - implicitContentHeight) / 2)
    Layout.leftMargin: -leftPadding
    Layout.rightMargin: -rightPadding
    Layout.topMargin: -topPadding
    Layout.bottomMargin: -bottomPadding

    contentItem: PlainText {
        text: button.label
        font: button.textFont
        color: button.hovered ? PaletteKey.palette.text : button.textColor
        Accessible.ignored: true
    }
}
