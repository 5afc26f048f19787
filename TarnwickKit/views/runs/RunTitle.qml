pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The title in the head of a run's card.
PlainText {
    Layout.fillWidth: true
    Layout.preferredWidth: Math.ceil(implicitWidth) // layouts round, and half a pixel less cuts a word
    Layout.maximumWidth: Layout.preferredWidth
    horizontalAlignment: Text.AlignLeft // in every script
    font: Typeface.display(16)
    color: PaletteKey.palette.text
    elide: Text.ElideRight
    maximumLineCount: 1
}
