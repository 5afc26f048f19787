pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// The words that appear under a control when the pointer rests on it.
T.ToolTip {
    id: tip

    delay: 700
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? parent.height + 6 : 0
    margins: 6
    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    horizontalPadding: 9
    verticalPadding: 5
    closePolicy: T.Popup.NoAutoClose

    contentItem: PlainText {
        text: tip.text
        font.pixelSize: 12
        color: tip.palette.windowText
        Accessible.ignored: true
    }
    background: Card {
        radius: 6
        color: tip.palette.window
        outline: tip.palette.mid
    }
}
