pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The saved runs: to expand, to delete, or to pick for a comparison.
// A positioner, because a layout of Qt 6.4 accesses a removed row after it was freed.
Column {
    id: section

    required property AnalyzerModel analyzer
    required property StoredRuns runs
    /// The visible part, in the section's coordinates. Units: logical pixels.
    required property real viewTop
    required property real viewHeight

    // The marks of the compare mode take a part of the width.
    readonly property bool hasTwoLines: width > 0 && width - (analyzer.compareMode ? 30 : 0) < ViewMetrics.narrowCard
    readonly property int rowHeight: 26 + Metrics.scaled(hasTwoLines ? 84 : 39)
    /// How far below the visible part rows are made in advance. Units: logical pixels.
    readonly property real ahead: AssistiveTechnology.active ? Infinity : 12 * (rowHeight + spacing)
    /// How many more rows may be made before the next frame. The first frame has no limit.
    property real allowance: Infinity
    property bool isWaiting: false

    /// Makes the rows between two heights. False when the allowance is used up before. An entry at 0 has not been
    /// positioned yet.
    function makeRows(top: real, bottom: real): bool {
        for (let row = 0; row < entries.count; ++row) {
            const entry = entries.itemAt(row) as HistoryEntry;
            if (entry.isMade || entry.y === 0 || entry.y >= bottom || entry.y + entry.height <= top)
                continue;
            if (allowance <= 0)
                return false;
            --allowance;
            entry.isMade = true;
        }
        return true;
    }
    function makeRowsInView(): void {
        makeRows(viewTop, viewTop + viewHeight);
        isWaiting = true;
    }

    function confirmClear(): void {
        question.active = true;
        (question.object as Alert).open();
    }

    // Visible rows are made at once, the others between frames, a few at a time.
    onViewTopChanged: makeRowsInView()
    onViewHeightChanged: makeRowsInView()
    onAheadChanged: isWaiting = true
    onPositioningComplete: makeRowsInView()

    spacing: 10

    PreviousRunsHead {
        width: section.width
        analyzer: section.analyzer
        onClearWanted: section.confirmClear()
    }

    OnDemand {
        active: section.analyzer.compareMode && section.runs.hasCurrentRun

        CompareRow {
            width: section.width
            label: current.label
            detail: current.detail
            hint: current.hint
            picking: true
            chosen: section.runs.isCurrentRunPicked
            onWanted: section.analyzer.toggleCompareSelection(current.facts.id)

            HistoryRow {
                id: current

                width: parent.width
                analyzer: section.analyzer
                run: section.runs.currentRun
                hasTwoLines: section.hasTwoLines
                note: qsTr("current run")
                live: false
            }
        }
    }
    Repeater {
        id: entries

        model: section.runs

        HistoryEntry {
            width: section.width
            analyzer: section.analyzer
            rowHeight: section.rowHeight
            hasTwoLines: section.hasTwoLines
        }
    }
    Connections {
        target: section.Window.window
        enabled: section.isWaiting

        function onFrameSwapped(): void {
            section.allowance = 4;
            section.isWaiting = !section.makeRows(section.viewTop, section.viewTop + section.viewHeight)
                    || !section.makeRows(-Infinity, section.viewTop + section.viewHeight + section.ahead);
        }
    }
    OnDemand {
        id: question

        Alert {
            parent: section
            title: qsTr("Delete all saved runs?")
            cancelText: qsTr("Cancel")
            acceptText: qsTr("Delete All")
            destructive: true
            onAccepted: section.analyzer.clearHistory()
        }
    }
}
