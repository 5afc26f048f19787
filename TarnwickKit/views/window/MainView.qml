pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The main pane. The model's state alone decides what it shows.
Rectangle {
    id: main

    required property AnalyzerModel analyzer
    required property TargetFacts target
    required property FocusKeeper keeper
    readonly property int margin: width < ViewMetrics.smallPane ? ViewMetrics.smallPaneMargin : ViewMetrics.paneMargin
    /// A comparison and a capacity check replace the phase's pane.
    readonly property bool showsPhase: !analyzer.isComparing && !analyzer.showsCheck
    readonly property bool showsRun: showsPhase && runs.hasCurrentRun
                                     && (analyzer.phase === AnalyzerModel.Idle || analyzer.phase === AnalyzerModel.Done)
    readonly property bool showsIdle: showsPhase && !runs.hasCurrentRun && analyzer.phase === AnalyzerModel.Idle

    function expand(): ExpandedRunPane {
        analyzer.currentRunCollapsed = false;
        return shown.object as ExpandedRunPane;
    }

    anchors.fill: parent
    color: PaletteKey.palette.body
    Component.onCompleted: keeper.passing = passing

    StoredRuns {
        id: runs

        analyzer: main.analyzer
    }
    Connections {
        target: main.analyzer

        // What was started far down in the history is shown at the top.
        function onComparisonBegan(): void { pane.goToTop(); }
        function onShowsCheckChanged(): void { pane.goToTop(); }
    }
    ScrollPane {
        id: pane

        anchors.fill: parent
        keeper: main.keeper

        Column {
            id: column

            x: Math.round((parent.width - width) / 2)
            y: main.margin
            width: Math.min(parent.width - 2 * main.margin, ViewMetrics.greatestCard)
            bottomPadding: main.margin
            spacing: main.margin

            Loader {
                width: column.width
                visible: active
                active: main.analyzer.showsCheck
                // By its file's name: else it would be compiled with this view for nothing.
                onActiveChanged: setSource(active ? "CapacityPane.qml" : "", active ? {
                    analyzer: main.analyzer,
                    volumeName: Qt.binding(() => main.target.volumeName)
                } : {})
            }
            // Each pane exists only while its state holds.
            OnDemand {
                active: main.analyzer.isComparing && !main.analyzer.showsCheck

                ComparisonPane {
                    width: column.width
                    analyzer: main.analyzer
                    runs: runs.comparison
                    onClose: main.analyzer.endComparison()
                }
            }
            OnDemand {
                active: main.showsIdle

                IdleCard {
                    width: column.width
                    analyzer: main.analyzer
                }
            }
            OnDemand {
                active: main.showsPhase && main.analyzer.isRunning

                LiveRunPane {
                    width: column.width
                    analyzer: main.analyzer
                    //: Stands for the name of a volume that is not known
                    volumeName: main.target.volumeName || qsTr("Volume")
                }
            }
            OnDemand {
                active: main.showsPhase && main.analyzer.phase === AnalyzerModel.Failed

                FailureBanner {
                    width: column.width
                    message: main.analyzer.failureMessage
                    explanation: main.analyzer.failureExplanation
                }
            }
            OnDemand {
                id: shown

                active: main.showsRun && !main.analyzer.currentRunCollapsed

                ExpandedRunPane {
                    width: column.width
                    analyzer: main.analyzer
                    run: runs.currentRun
                    onCollapse: main.analyzer.currentRunCollapsed = true
                    onRemove: main.analyzer.deleteRun(facts.id)
                }
            }
            OnDemand {
                active: main.showsRun && main.analyzer.currentRunCollapsed

                CollapsedRunView {
                    width: column.width
                    analyzer: main.analyzer
                    run: runs.currentRun
                    onClicked: main.analyzer.currentRunCollapsed = false
                    onRename: main.expand().rename()
                    onShare: main.expand().share()
                    onRemove: main.analyzer.deleteRun(facts.id)
                }
            }
            PreviousRunsSection {
                width: parent.width
                visible: runs.count > 0 && !main.analyzer.showsCheck
                viewTop: pane.contentY - column.y - y
                viewHeight: pane.height
                analyzer: main.analyzer
                runs: runs
            }
        }
    }
    PassingNotes {
        id: passing

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: main.margin
        analyzer: main.analyzer
        greatestWidth: main.width - 2 * main.margin
    }
}
