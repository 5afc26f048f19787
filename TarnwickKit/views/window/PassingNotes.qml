pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The notes at the foot of the main pane, which disappear by themselves.
Column {
    id: notes

    required property AnalyzerModel analyzer
    required property real greatestWidth

    spacing: ViewMetrics.paneMargin / 2

    OnDemand {
        active: notes.analyzer.refusal.length > 0

        QuietLine {
            anchors.horizontalCenter: parent?.horizontalCenter
            greatestWidth: notes.greatestWidth
            sentence: notes.analyzer.refusal
        }
    }
    OnDemand {
        active: notes.analyzer.undoableRuns > 0

        UndoNote {
            anchors.horizontalCenter: parent?.horizontalCenter
            analyzer: notes.analyzer
        }
    }
}
