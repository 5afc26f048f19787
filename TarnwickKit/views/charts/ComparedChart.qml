pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// One curve of each compared run in one chart, in the runs' colours.
Column {
    id: view

    required property string title
    required property comparedRuns runs
    required property int curve

    spacing: 10
    bottomPadding: ViewMetrics.cardPadding

    Separator {
        width: view.width
        color: PaletteKey.palette.borderSoft
    }
    PlainText {
        x: ViewMetrics.cardPadding
        text: view.title
        font: Typeface.mono(10.5, 1.5)
        color: PaletteKey.palette.text2
        Accessible.ignored: true
    }
    ThroughputChart {
        id: chart

        x: ViewMetrics.cardPadding
        width: view.width - 2 * x
        height: ViewMetrics.chartHeight
        title: view.title
        axisUnit: "MB/s"
        readable: true
    }
    ComparedSeries {
        chart: chart
        runs: view.runs
        curve: view.curve
        colors: chart.PaletteKey.palette.series
    }
}
