pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls
import TarnwickKit.views

/// The words that appear under a control when the pointer rests on it.
T.ToolTip {
    id: tip

    /// Assistive technology reads it too; a button's hint it knows already.
    property bool spoken: false

    visible: true
    delay: 700
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? parent.height + 6 : 0
    margins: 6
    implicitWidth: Math.min(contentItem.implicitWidth + leftPadding + rightPadding, 320)
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    horizontalPadding: 9
    verticalPadding: 5
    closePolicy: T.Popup.NoAutoClose

    contentItem: PlainText {
        text: tip.text
        font: Typeface.text(11.5)
        color: PaletteKey.palette.text
        wrapMode: Text.Wrap
        Accessible.ignored: !tip.spoken
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    background: Card {
        radius: 6
        color: PaletteKey.palette.panel
        outline: PaletteKey.palette.border
        shadowColor: PaletteKey.palette.shadow
        shadowRadius: 9
        shadowOffset: 4
    }
}
