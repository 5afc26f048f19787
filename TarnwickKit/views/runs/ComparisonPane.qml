pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The comparison of runs in the window.
CardFrame {
    id: pane

    required property comparedRuns runs

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
            text: qsTr("Comparing %1 runs").arg(pane.runs.count)
            font: Typeface.display(16)
            color: PaletteKey.palette.text
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
        },
        ShareButton {
            hint: qsTr("Share a comparison image")
            onClicked: image.makeComparison(pane.runs, pane.PaletteKey.palette)
        },
        IconButton {
            label: qsTr("Close")
            symbol: "xmark"
            onClicked: pane.close()
        }
    ]

    ComparisonChart {
        Layout.fillWidth: true
        runs: pane.runs
        // As wide as on the image, but in a narrow window as wide as there is room beside its words and figures.
        trackWidth: Math.max(60, Math.min(ViewMetrics.trackWidth, pane.width - 234))
    }
}
