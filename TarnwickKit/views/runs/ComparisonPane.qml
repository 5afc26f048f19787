pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The comparison of runs in the window.
CardFrame {
    id: pane

    required property AnalyzerModel analyzer
    required property comparedRuns runs
    /// What stands beside a bar: the metric's name, the figures, and the gaps.
    readonly property real beside: (isNarrow ? 58 : ViewMetrics.metricLabelWidth + 87) + ViewMetrics.barFigureWidth + ViewMetrics.differenceWidth

    signal close

    headerPadding: 14
    header: [
        VolumeBadge {
            color: PaletteKey.palette.teal2
            endColor: PaletteKey.palette.blue
            outline: "transparent"
            symbol: "chart.bar.xaxis"
            symbolSize: 13
            symbolWeight: Font.Normal
        },
        PlainText {
            Layout.fillWidth: true
            text: qsTr("Comparing %n runs", "", pane.runs.count)
            font: Typeface.display(16)
            color: PaletteKey.palette.text
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
        },
        ShareButton {
            runs: pane.runs
            hint: qsTr("Share a comparison image")
            onClicked: image.makeComparison(pane.runs, pane.PaletteKey.palette)
        },
        IconButton {
            //: Button: leaves the comparison
            label: qsTr("Close")
            symbol: "xmark"
            onClicked: pane.close()
        }
    ]

    SettingMenu {
        Layout.fillWidth: false
        Layout.leftMargin: ViewMetrics.figurePadding - ViewMetrics.sidebarInset
        Layout.topMargin: 14
        widestValue: pane.width - 200
        //: A list of runs follows, of which one is the reference
        label: qsTr("Differences from")
        options: pane.runs.names
        current: pane.analyzer.comparisonReference
        onChosen: index => pane.analyzer.comparisonReference = index
    }
    ComparisonChart {
        Layout.fillWidth: true
        runs: pane.runs
        reference: pane.analyzer.comparisonReference
        isNarrow: pane.isNarrow
        trackWidth: Math.max(60, pane.width - pane.beside)
    }
    ComparedCurves {
        Layout.fillWidth: true
        runs: pane.runs
    }
}
