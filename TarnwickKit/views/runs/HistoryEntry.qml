pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// An entry of the history: a placeholder as high as a row until it is made, then a row or the expanded pane.
Column {
    id: entry

    required property AnalyzerModel analyzer
    required property int rowHeight
    required property bool hasTwoLines
    required property runRecord run
    required property bool expanded
    required property bool picked
    readonly property bool isOpen: expanded && !analyzer.compareMode
    property bool isMade: false

    function expand(): ExpandedRunPane {
        analyzer.setRunExpanded(Runs.facts(run).id, true);
        return open.object as ExpandedRunPane;
    }

    height: isMade ? implicitHeight : rowHeight

    OnDemand {
        active: entry.isMade && !entry.isOpen

        CompareRow {
            width: entry.width
            label: row.label
            detail: row.detail
            hint: row.hint
            picking: entry.analyzer.compareMode
            chosen: entry.picked
            onWanted: entry.analyzer.toggleCompareSelection(row.facts.id)

            HistoryRow {
                id: row

                width: parent.width
                analyzer: entry.analyzer
                run: entry.run
                hasTwoLines: entry.hasTwoLines
                live: !entry.analyzer.compareMode
                onRename: entry.expand().rename()
                onShare: entry.expand().share()
                onClicked: entry.analyzer.setRunExpanded(facts.id, true)
                onRemove: entry.analyzer.deleteRun(facts.id)
            }
        }
    }
    OnDemand {
        id: open

        active: entry.isMade && entry.isOpen

        ExpandedRunPane {
            width: entry.width
            analyzer: entry.analyzer
            run: entry.run
            onCollapse: entry.analyzer.setRunExpanded(facts.id, false)
            onRemove: entry.analyzer.deleteRun(facts.id)
        }
    }
}
