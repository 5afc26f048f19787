pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import TarnwickKit.views

/// The saved runs, to open, to delete, or to pick for a comparison.
ColumnLayout {
    id: section

    required property AnalyzerModel analyzer
    required property StoredRuns runs

    spacing: 10

    RowLayout {
        Layout.fillWidth: true
        spacing: 10

        Words {
            text: section.analyzer.compareMode ? qsTr("Select runs to compare") : qsTr("Previous runs")
            font: Typeface.display(14)
            color: PaletteKey.palette.heading
            Accessible.role: Accessible.Heading
        }
        Rule {
            Layout.fillWidth: true
            color: PaletteKey.palette.border
        }
        TextButton {
            visible: !section.analyzer.compareMode && section.runs.count >= 2
            label: qsTr("Compare")
            onClicked: section.analyzer.toggleCompareMode()
        }
        TextButton {
            visible: !section.analyzer.compareMode
            label: qsTr("Clear")
            onClicked: confirmClear.open()
        }
        TextButton {
            visible: section.analyzer.compareMode
            enabled: section.analyzer.compareSelectionCount >= 2
            label: qsTr("Compare %1").arg(section.analyzer.compareSelectionCount)
            textFont: Typeface.text(11, Font.DemiBold)
            textColor: PaletteKey.palette.heading
            onClicked: section.analyzer.beginComparison()
        }
        TextButton {
            visible: section.analyzer.compareMode
            label: qsTr("Cancel")
            onClicked: section.analyzer.toggleCompareMode()
        }
    }

    Repeater {
        model: section.runs

        Column {
            id: entry

            required property runRecord run
            required property bool expanded
            required property bool picked

            Layout.fillWidth: true

            Repeater {
                model: section.analyzer.compareMode ? 1 : 0

                CompareRow {
                    width: entry.width
                    run: entry.run
                    chosen: entry.picked
                    onWanted: section.analyzer.toggleCompareSelection(facts.id)
                }
            }
            Repeater {
                model: !section.analyzer.compareMode && entry.expanded ? 1 : 0

                ExpandedRunPane {
                    width: entry.width
                    analyzer: section.analyzer
                    run: entry.run
                    onCollapse: section.analyzer.setRunExpanded(facts.id, false)
                    onRemove: section.analyzer.deleteRun(facts.id)
                }
            }
            Repeater {
                model: !section.analyzer.compareMode && !entry.expanded ? 1 : 0

                HistoryRow {
                    width: entry.width
                    run: entry.run
                    onClicked: section.analyzer.setRunExpanded(facts.id, true)
                    onRemove: section.analyzer.deleteRun(facts.id)
                }
            }
        }
    }

    Alert {
        id: confirmClear

        title: qsTr("Delete all saved runs?")
        cancelText: qsTr("Cancel")
        acceptText: qsTr("Delete All")
        destructive: true
        onAccepted: section.analyzer.clearHistory()
    }
}
