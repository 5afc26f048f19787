pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A comparison as an image to share, with the same chart as its pane in the window.
ImageCard {
    id: card

    required property comparedRuns runs
    /// The product's web address without its scheme.
    required property string link

    Item {
        width: parent.width
        height: brand.implicitHeight + 30

        Brand {
            id: brand

            anchors.left: parent.left
            anchors.leftMargin: ViewMetrics.cardPadding
            y: 15
            nameSize: 16
            link: card.link
        }
    }
    Separator {
        width: parent.width
        color: PaletteKey.palette.borderSoft
    }
    ComparisonChart {
        width: parent.width
        runs: card.runs
        trackWidth: ViewMetrics.trackWidth
    }
    Separator {
        width: parent.width
        color: PaletteKey.palette.border
    }
    CardFoot {
        width: parent.width
        implicitHeight: row.implicitHeight + 32
        corner: card.corner

        RowLayout {
            id: row

            x: ViewMetrics.figurePadding
            y: 16
            width: parent.width - 2 * x
            spacing: 14

            Column {
                spacing: 1

                PlainText {
                    text: qsTr("Runs comparison")
                    font: Typeface.display(15)
                    color: PaletteKey.palette.text
                }
                PlainText {
                    text: qsTr("%n benchmarks compared", "", card.runs.count)
                    font: Typeface.mono(11)
                    color: PaletteKey.palette.text3
                }
            }
            Item {
                Layout.fillWidth: true
            }
            PlainText {
                text: qsTr("Scan to try it")
                font: Typeface.mono(10.5)
                color: PaletteKey.palette.text3
            }
            QRTile {
                link: card.link
            }
        }
    }
}
