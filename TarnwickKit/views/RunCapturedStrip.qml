pragma ComponentBehavior: Bound

import QtQuick
import OndelDrawing
import TarnwickKit.views

/// The facts of the volume and the settings that were captured with a run, at the foot of its card.
Item {
    id: strip

    required property runFacts facts
    readonly property real corner: 15

    implicitHeight: items.height + 26
    clip: true

    Card {
        y: -strip.corner
        width: strip.width
        height: strip.height + strip.corner
        radius: strip.corner
        color: PaletteKey.palette.panel2
    }
    FlowLayout {
        id: items

        x: 20
        y: 13
        width: strip.width - 40
        spacing: 22

        Repeater {
            model: strip.facts.captured

            Row {
                id: item

                required property infoItem modelData

                Accessible.role: Accessible.StaticText
                Accessible.name: modelData.label + " " + modelData.value

                Text {
                    id: name

                    text: item.modelData.label + " "
                    font: Typeface.text(12)
                    color: PaletteKey.palette.text2
                    Accessible.ignored: true
                }
                Text {
                    anchors.baseline: name.baseline
                    text: item.modelData.value
                    font: Typeface.mono(12)
                    color: PaletteKey.palette.text
                    Accessible.ignored: true
                }
            }
        }
    }
}
