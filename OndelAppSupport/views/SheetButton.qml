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
        color: !button.prominent ? button.palette.button
             : button.hovered ? Qt.tint(button.palette.highlight, Qt.alpha(button.palette.highlightedText, 0.16)) : button.palette.highlight
        outline: button.prominent ? "transparent" : button.hovered ? button.palette.link : button.palette.mid
        opacity: !button.enabled ? Metrics.disabledOpacity : button.pressed ? Metrics.pressedOpacity : 1
    }
}
