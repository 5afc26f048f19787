pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import OndelAppSupport.views

/// A button on the support banner.
BaseButton {
    id: button

    property bool prominent: false
    property color prominentColor: OndelBrand.coralButton
    /// How far the area to press extends over the button's upper and lower edge.
    readonly property real reach: Math.max(0, (Metrics.leastTarget - implicitContentHeight) / 2 - (prominent ? 5 : 4))

    horizontalPadding: 10
    verticalPadding: (prominent ? 5 : 4) + reach
    topInset: reach
    bottomInset: reach
    corner: Metrics.fieldCorner
    focusColor: "white"

    tip: Tip {
        parent: button
        text: button.hint
    }
    contentItem: PlainText {
        text: button.label
        font.pixelSize: Metrics.noteSize
        font.weight: button.prominent ? Font.DemiBold : Font.Normal
        color: "white"
        Accessible.ignored: true
    }
    background: Card {
        radius: button.corner
        color: button.prominent ? button.prominentColor : Qt.rgba(1, 1, 1, 0.16)
    }
}
