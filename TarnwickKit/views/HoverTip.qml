import QtQuick
import QtQuick.Templates as T
import TarnwickKit.views

/// The words that appear under a control when the pointer rests on it.
T.ToolTip {
    id: tip

    property bool wanted: false

    visible: wanted
    delay: 700
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? parent.height + 6 : 0
    margins: 6
    implicitWidth: Math.min(contentItem.implicitWidth + leftPadding + rightPadding, 320)
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    horizontalPadding: 9
    verticalPadding: 5
    closePolicy: T.Popup.NoAutoClose

    contentItem: Text {
        text: tip.text
        font: Typeface.text(11.5)
        color: PaletteKey.palette.text
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
    background: Rectangle {
        radius: 6
        color: PaletteKey.palette.panel
        border.color: PaletteKey.palette.border
    }
}
