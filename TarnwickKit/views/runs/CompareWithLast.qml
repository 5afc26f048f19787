pragma ComponentBehavior: Bound

import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// Offers a comparison with the earlier run of the same volume, if there is one.
OnDemand {
    id: offer

    required property AnalyzerModel analyzer
    required property var runId

    // It depends on the list of runs, which `canCompare` stands for.
    active: analyzer.canCompare && analyzer.hasLastOfVolume(runId)

    SmallButton {
        Layout.leftMargin: ViewMetrics.cardPadding
        Layout.topMargin: 16
        label: qsTr("Compare with last run of this volume")
        symbol: "chart.bar.xaxis"
        onClicked: offer.analyzer.compareWithLast(offer.runId)
    }
}
