pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The title in the head of a run's card.
PlainText {
    id: title

    Layout.fillWidth: true
    // Layouts round, and half a pixel less cuts a word. A cut text's own width is that of what is left of it.
    Layout.preferredWidth: Math.ceil(Math.max(implicitWidth, whole.advanceWidth))
    Layout.maximumWidth: Layout.preferredWidth
    horizontalAlignment: Text.AlignLeft // in every script
    font: Typeface.display(16)
    color: PaletteKey.palette.text
    elide: Text.ElideRight
    maximumLineCount: 1

    TextMetrics {
        id: whole

        text: title.text
        font: title.font
    }
}
