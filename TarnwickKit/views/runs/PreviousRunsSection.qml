pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The saved runs, to open, to delete, or to pick for a comparison.
// A positioner: a layout goes on asking a row that has just been removed, and finds its memory freed (Qt 6.4).
Column {
    id: section

    required property AnalyzerModel analyzer
    required property StoredRuns runs
    /// How far the view goes down from the section's top; logical pixels.
    required property real reach

    readonly property int rowHeight: 65
    readonly property int seen: Math.ceil((reach - head.height) / (rowHeight + spacing))
    readonly property int ahead: 12
    property int made: 0
    property int seenBefore: 0

    function confirmClear(): void {
        question.setSource("Alert.qml", {
            parent: section,
            title: qsTr("Delete all saved runs?"),
            cancelText: qsTr("Cancel"),
            acceptText: qsTr("Delete All"),
            destructive: true
        });
        (question.item as Alert).open();
    }

    // A pane that opens above hides rows, which are no hurry then.
    onSeenChanged: {
        if (seen > seenBefore)
            made = Math.max(made, seen);
        seenBefore = seen;
    }

    spacing: 10

    RowLayout {
        id: head

        width: section.width
        spacing: 10

        PlainText {
            text: section.analyzer.compareMode ? qsTr("Select runs to compare") : qsTr("Previous runs")
            font: Typeface.display(14)
            color: PaletteKey.palette.heading
            Accessible.role: Accessible.Heading
        }
        Separator {
            Layout.fillWidth: true
            color: PaletteKey.palette.border
        }
        Repeater {
            model: section.analyzer.compareMode ? 0 : 1

            RowLayout {
                spacing: head.spacing

                TextButton {
                    visible: section.runs.count >= 2
                    label: qsTr("Compare")
                    onClicked: section.analyzer.toggleCompareMode()
                }
                TextButton {
                    label: qsTr("Clear")
                    onClicked: section.confirmClear()
                }
            }
        }
        Repeater {
            model: section.analyzer.compareMode ? 1 : 0

            RowLayout {
                spacing: head.spacing

                TextButton {
                    enabled: section.analyzer.compareSelectionCount >= 2
                    label: qsTr("Compare %1").arg(section.analyzer.compareSelectionCount)
                    textFont: Typeface.text(11, Font.DemiBold)
                    textColor: PaletteKey.palette.heading
                    onClicked: section.analyzer.beginComparison()
                }
                TextButton {
                    label: qsTr("Cancel")
                    onClicked: section.analyzer.toggleCompareMode()
                }
            }
        }
    }

    Repeater {
        model: section.runs

        Column {
            id: entry

            required property int index
            required property runRecord run
            required property bool expanded
            required property bool picked
            readonly property bool isMade: index < section.made
            readonly property bool isOpen: expanded && !section.analyzer.compareMode

            width: section.width
            height: isMade ? implicitHeight : section.rowHeight

            Repeater {
                model: entry.isMade && !entry.isOpen ? 1 : 0

                CompareRow {
                    width: entry.width
                    label: row.label
                    detail: row.detail
                    picking: section.analyzer.compareMode
                    chosen: entry.picked
                    onWanted: section.analyzer.toggleCompareSelection(row.facts.id)

                    HistoryRow {
                        id: row

                        width: parent.width
                        run: entry.run
                        live: !section.analyzer.compareMode
                        onClicked: section.analyzer.setRunExpanded(facts.id, true)
                        onRemove: section.analyzer.deleteRun(facts.id)
                    }
                }
            }
            Repeater {
                model: entry.isMade && entry.isOpen ? 1 : 0

                ExpandedRunPane {
                    width: entry.width
                    analyzer: section.analyzer
                    run: entry.run
                    onCollapse: section.analyzer.setRunExpanded(facts.id, false)
                    onRemove: section.analyzer.deleteRun(facts.id)
                }
            }
        }
    }

    // Rows in sight are made at once, those that come next between frames, as all are where many are exchanged.
    Connections {
        target: section.runs

        function onModelAboutToBeReset(): void {
            section.made = 0;
        }
    }
    Connections {
        target: section.made < Math.min(section.runs.count, Assistance.active ? Infinity : section.seen + section.ahead)
                ? section.Window.window : null

        function onFrameSwapped(): void {
            section.made += 4;
        }
    }
    Loader {
        id: question
    }
    Connections {
        target: question.item

        function onAccepted(): void {
            section.analyzer.clearHistory();
        }
    }
}
