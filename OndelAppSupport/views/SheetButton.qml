pragma ComponentBehavior: Bound

import QtQuick
import OndelControls

/// A push button of a sheet or a panel. The prominent one is the default button.
BaseButton {
    id: button

    property bool prominent: false

    implicitWidth: Math.max(74, implicitContentWidth + leftPadding + rightPadding)
    horizontalPadding: 14
    verticalPadding: 5
    corner: Metrics.fieldCorner
    dimsWhenInactive: false

    contentItem: PlainText {
        text: button.label
        font.pixelSize: Metrics.textSize
        font.weight: button.prominent ? Font.DemiBold : Font.Medium
        color: button.prominent ? button.palette.highlightedText : button.palette.buttonText
        horizontalAlignment: Text.AlignHCenter
        opacity: button.enabled ? 1 : Metrics.disabledTextOpacity
        Accessible.ignored: true
    }
    background: Card {
        radius: button.corner
        color: button.prominent ? button.palette.highlight : button.palette.button
        outline: button.prominent ? "transparent" : button.palette.mid
        opacity: !button.enabled ? Metrics.disabledOpacity : button.pressed ? Metrics.pressedOpacity : 1
    }
}
