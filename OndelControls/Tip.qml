pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// The words that appear under a control when the pointer rests on it.
T.ToolTip {
    id: tip

    property color fill: palette.window
    property color ink: palette.windowText
    property color outline: palette.mid
    property color shadowColor: "transparent"
    /// As plain texts have it: the toolkit gives popups another one.
    property font textFont: Qt.font({
        family: Application.font.family,
        pixelSize: 12,
        hintingPreference: Font.PreferNoHinting
    })
    /// Assistive technology reads it too. It knows a button's hint already.
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
    Component.onCompleted: visible = true // not before the delay is known

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
