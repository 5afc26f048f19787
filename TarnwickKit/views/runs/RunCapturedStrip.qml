pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The volume and the settings at the time of a run, at the foot of its card.
CardFoot {
    id: strip

    required property runFacts facts
    readonly property bool hasFacts: facts.captured.length > 0

    visible: hasFacts
    implicitHeight: items.height + 26
    corner: ViewMetrics.cardCorner

    FlowLayout {
        id: items

        x: ViewMetrics.figurePadding
        y: 13
        width: strip.width - 2 * x
        // With all facts present, one line needs less than the usual spacing to fit an image.
        spacing: {
            let taken = 0;
            for (let i = 0; i < each.count; ++i)
                taken += each.itemAt(i)?.width ?? 0;
            return ViewMath.spacingInLine(width, taken, each.count, 22, 12);
        }
        lineSpacing: 8
        mirrored: LayoutMirroring.enabled

        Repeater {
            id: each

            model: strip.facts.captured

            Row {
                id: item

                required property infoItem modelData

                Accessible.role: Accessible.StaticText
                Accessible.name: modelData.label + " " + modelData.value

                PlainText {
                    id: name

                    text: item.modelData.label + " "
                    font: Typeface.text(12)
                    color: PaletteKey.palette.text2
                    Accessible.ignored: true
                }
                PlainText {
                    anchors.baseline: name.baseline
                    width: Math.min(implicitWidth, items.width - name.width)
                    elide: Text.ElideRight
                    text: item.modelData.value
                    font: Typeface.mono(12)
                    color: PaletteKey.palette.text
                    Accessible.ignored: true
                }
            }
        }
    }
}
