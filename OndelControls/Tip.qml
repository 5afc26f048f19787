pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// A tool tip under its control.
T.ToolTip {
    id: tip

    property color fill: palette.window
    property color ink: palette.windowText
    property color outline: palette.mid
    property color shadowColor: "transparent"
    /// The same as in plain texts; a popup does not inherit it from the window.
    property font textFont: Qt.font({
        family: Application.font.family,
        pixelSize: Metrics.captionSize,
        hintingPreference: Font.PreferNoHinting
    })
    /// Assistive technology reads it. A button's hint needs no reading: it is the button's description.
    property bool spoken: false

    delay: Metrics.tipDelay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? parent.height + Metrics.tipGap : 0
    margins: Metrics.tipMargin
    implicitWidth: Math.min(contentItem.implicitWidth + leftPadding + rightPadding, Metrics.tipWidth)
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    horizontalPadding: 9
    verticalPadding: 5
    closePolicy: T.Popup.NoAutoClose
    Component.onCompleted: visible = true // only now is the delay set

    contentItem: PlainText {
        text: tip.text
        font: tip.textFont
        color: tip.ink
        wrapMode: Text.Wrap
        Accessible.ignored: !tip.spoken
    }
    background: Card {
        radius: Metrics.tipCorner
        color: tip.fill
        outline: tip.outline
        shadowColor: tip.shadowColor
        shadowRadius: Metrics.tipShadow
        shadowOffset: Metrics.tipShadowOffset
    }
}
