pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// Runs side by side: bars per metric, one colour per run.
Column {
    id: chart

    required property comparedRuns runs
    /// The width of a full bar.
    required property real trackWidth
    /// The run that differences are relative to; -1 for no differences.
    property int reference: -1
    /// Too narrow for the metrics' names beside their bars.
    property bool isNarrow: false
    readonly property real room: width - leftPadding - rightPadding

    spacing: 18
    leftPadding: ViewMetrics.figurePadding
    rightPadding: ViewMetrics.figurePadding
    topPadding: ViewMetrics.cardPadding
    bottomPadding: ViewMetrics.cardPadding

    function seriesColor(index: int): color {
        const series = PaletteKey.palette.series;
        return series[index % series.length];
    }

    FlowLayout {
        width: chart.room
        spacing: 16
        mirrored: LayoutMirroring.enabled

        Repeater {
            model: chart.runs.entries

            ColorKey {
                required property int index
                required property comparedRun modelData

                width: Math.min(implicitWidth, chart.room)
                color: chart.seriesColor(index)
                text: modelData.legend
                font: Typeface.text(11.5)
                textColor: PaletteKey.palette.text2
                elide: Text.ElideMiddle
            }
        }
    }
    Repeater {
        model: chart.runs.metrics(chart.trackWidth, chart.reference)

        MetricGroup {
            required property comparedMetric modelData

            metric: modelData
            trackWidth: chart.trackWidth
            isNarrow: chart.isNarrow
            showsDifferences: chart.reference >= 0
        }
    }
    OnDemand {
        active: chart.runs.hasMarks

        MarkedLine {
            words: qsTr("Not the disk’s figure")
            room: chart.room
        }
    }
    Separator {
        width: chart.room
        color: PaletteKey.palette.borderSoft
    }
    Column {
        spacing: 5

        Repeater {
            model: chart.runs.entries

            ColorKey {
                required property int index
                required property comparedRun modelData

                width: chart.room
                side: 9
                color: chart.seriesColor(index)
                text: modelData.parameters
                font: Typeface.mono(10)
                textColor: PaletteKey.palette.text3
                wrapMode: Text.Wrap
            }
        }
    }
}
