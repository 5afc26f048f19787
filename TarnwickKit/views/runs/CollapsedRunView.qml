pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The current run, collapsed to one row.
PlainButton {
    id: view

    required property AnalyzerModel analyzer
    required property runRecord run
    readonly property runFacts facts: Runs.facts(run)

    /// The figures stand in a line of their own.
    readonly property bool hasTwoLines: width > 0 && width < ViewMetrics.narrowCollapsed

    signal rename
    signal share
    signal remove

    label: facts.title
    hint: title.truncated ? facts.title : ""
    detail: facts.stamp
    corner: 14
    dimsWhenInactive: false
    leftPadding: ViewMetrics.cardPadding
    rightPadding: ViewMetrics.cardPadding
    topPadding: 15
    bottomPadding: 15

    background: Card {
        radius: view.corner
        color: PaletteKey.palette.panel
        outline: view.hovered ? view.frameColor : Qt.alpha(PaletteKey.palette.accent, 0.35)
        shadowColor: PaletteKey.palette.shadow
        shadowRadius: Metrics.menuShadow
        shadowOffset: 12
    }
    contentItem: GridLayout {
        id: line

        columnSpacing: 16
        rowSpacing: 12

        StatusDot {
            color: PaletteKey.palette.goodDot
        }
        ColumnLayout {
            spacing: 2

            RowLayout {
                spacing: 8

                RunTitle {
                    id: title

                    text: view.facts.title
                    font: Typeface.display(15)
                    Accessible.ignored: true
                }
                CompleteBadge {}
            }
            PlainText {
                Layout.fillWidth: true
                text: view.facts.stamp
                horizontalAlignment: Text.AlignLeft
                font: Typeface.mono(10.5)
                color: PaletteKey.palette.text3
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }
        Item {
            Layout.fillWidth: true
        }
        RowLayout {
            Layout.row: view.hasTwoLines ? 1 : 0
            Layout.column: view.hasTwoLines ? 0 : 3
            Layout.columnSpan: view.hasTwoLines ? 4 : 1
            // Its own width would be shared out among the columns that it spans.
            Layout.fillWidth: view.hasTwoLines
            Layout.minimumWidth: view.hasTwoLines ? 1 : -1
            Layout.preferredWidth: view.hasTwoLines ? 1 : -1
            spacing: line.columnSpacing

            RunSummaryStat {
                Layout.preferredWidth: ViewMetrics.statWidth
                //: Noun, before the rate of the sequential write test
                label: qsTr("Write")
                value: view.facts.writeBps
                isMarked: view.facts.isWriteMarked
                dot: PaletteKey.palette.coral
            }
            RunSummaryStat {
                Layout.preferredWidth: ViewMetrics.statWidth
                //: Noun, before the rate of the sequential read test
                label: qsTr("Read")
                value: view.facts.readBps
                isMarked: view.facts.isReadMarked
                dot: PaletteKey.palette.teal
            }
            DualSparkline {
                Layout.fillWidth: view.hasTwoLines
                implicitWidth: view.hasTwoLines ? 40 : 130
                implicitHeight: 40
                run: view.run
            }
        }
        Symbol {
            Layout.row: 0
            Layout.column: view.hasTwoLines ? 3 : 4
            name: "chevron.down"
            size: 11
            color: PaletteKey.palette.text3
        }
    }

    Keys.onPressed: event => actions.take(event)

    RunActions {
        id: actions

        analyzer: view.analyzer
        run: view.run
        facts: view.facts
        onRename: view.rename()
        onShare: view.share()
        onRemove: view.remove()
    }
}
