pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The features of the target's file system.
FlowLayout {
    id: chips

    required property TargetFacts target

    spacing: 6
    mirrored: LayoutMirroring.enabled

    Repeater {
        model: chips.target.features

        Card {
            id: chip

            required property string modelData

            implicitWidth: row.implicitWidth + 18
            implicitHeight: row.implicitHeight + 8
            radius: height / 2
            color: PaletteKey.palette.chip
            outline: PaletteKey.palette.border

            Row {
                id: row

                anchors.centerIn: parent
                spacing: 5

                Symbol {
                    anchors.verticalCenter: parent.verticalCenter
                    name: "checkmark"
                    size: 8
                    color: PaletteKey.palette.teal
                }
                PlainText {
                    text: chip.modelData
                    font: Typeface.text(11)
                    color: PaletteKey.palette.text2
                }
            }
        }
    }
}
