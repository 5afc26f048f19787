pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A finished run as an image to share, built of the same items as its pane in the window.
ImageCard {
    id: card

    required property runRecord run
    /// The product's web address without its scheme.
    required property string link
    readonly property runFacts facts: Runs.facts(run)

    Item {
        width: parent.width
        height: head.implicitHeight + 30

        RowLayout {
            id: head

            x: ViewMetrics.cardPadding
            y: 15
            width: parent.width - 2 * x
            spacing: 12

            VolumeBadge {
                implicitWidth: 34
                implicitHeight: 34
                color: PaletteKey.palette.badgeStart(card.facts.kind)
                endColor: PaletteKey.palette.badgeEnd(card.facts.kind)
                outline: "transparent"
                symbol: card.facts.badgeSymbol
                symbolSize: 15
            }
            ColumnLayout {
                spacing: 1

                PlainText {
                    Layout.fillWidth: true
                    text: card.facts.screenshotTitle
                    wrapMode: Text.Wrap
                    maximumLineCount: 4
                    elide: Text.ElideRight
                    horizontalAlignment: Text.AlignLeft // in every script
                    font: Typeface.display(16)
                    color: PaletteKey.palette.text
                }
                PlainText {
                    Layout.fillWidth: true
                    text: card.facts.screenshotSubtitle
                    wrapMode: Text.Wrap
                    maximumLineCount: 4
                    elide: Text.ElideRight
                    font: Typeface.mono(11)
                    color: PaletteKey.palette.text3
                }
            }
            PlainText {
                text: card.facts.stamp
                font: Typeface.mono(11.5)
                color: PaletteKey.palette.text3
            }
        }
    }
    Separator {
        width: parent.width
        color: PaletteKey.palette.borderSoft
    }
    RunHeadline {
        width: parent.width
        facts: card.facts
    }
    OnDemand {
        active: card.facts.markedLine !== ""

        Column {
            Separator {
                width: card.width - 2 * card.margin
                color: PaletteKey.palette.borderSoft
            }
            MarkedLine {
                width: card.width - 2 * card.margin
                leftPadding: ViewMetrics.figurePadding
                rightPadding: ViewMetrics.figurePadding
                topPadding: 11
                bottomPadding: 11
                words: card.facts.markedLine
                room: card.width - 2 * (card.margin + ViewMetrics.figurePadding)
            }
        }
    }
    Separator {
        width: parent.width
        color: PaletteKey.palette.borderSoft
    }
    RunChart {
        width: parent.width
        run: card.run
    }
    Separator {
        visible: strip.hasFacts
        width: parent.width
        color: PaletteKey.palette.borderSoft
    }
    RunCapturedStrip {
        id: strip

        width: parent.width
        facts: card.facts
        corner: 0
    }
    Separator {
        width: parent.width
        color: PaletteKey.palette.border
    }
    ReportFooter {
        width: parent.width
        corner: card.corner
        link: card.link
    }
}
