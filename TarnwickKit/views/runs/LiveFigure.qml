pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The running test's rate, large, in the head of a card. It leaves the head's height to the other items.
Item {
    id: place

    required property LiveRun run

    implicitWidth: line.implicitWidth
    visible: run.figure.length > 0

    Row {
        id: line

        anchors.verticalCenter: parent.verticalCenter
        layoutDirection: LayoutMirroring.enabled ? Qt.RightToLeft : Qt.LeftToRight // mirrored once more: a unit stands behind its figure
        spacing: 6

        PlainText {
            id: figure

            text: place.run.figure
            font: Typeface.figures(26)
            color: PaletteKey.palette.text
            Accessible.ignored: true // the progress bar's description has it
        }
        PlainText {
            anchors.baseline: figure.baseline
            text: place.run.unit
            font: Typeface.mono(12)
            color: PaletteKey.palette.text3
            Accessible.ignored: true
        }
    }
}
