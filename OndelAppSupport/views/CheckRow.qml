pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// A check box with its label.
T.CheckBox {
    id: box

    implicitWidth: words.implicitWidth + leftPadding + rightPadding
    implicitHeight: Math.max(indicator.implicitHeight, words.implicitHeight)
    leftPadding: mirrored ? 0 : Metrics.checkIndent
    rightPadding: mirrored ? Metrics.checkIndent : 0
    hoverEnabled: true
    Accessible.name: text

    indicator: TickBox {
        x: box.mirrored ? box.width - width : 0
        y: Math.round((box.height - height) / 2)
        ticked: box.checked
        idleOutline: box.hovered ? box.palette.link : box.palette.mid
        markWeight: Font.DemiBold
    }
    contentItem: PlainText {
        id: words

        text: box.text
        font.pixelSize: Metrics.textSize
        color: box.palette.windowText
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    FocusMark {
        control: box
    }
}
