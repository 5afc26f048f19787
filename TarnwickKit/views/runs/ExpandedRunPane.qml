pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A finished run at full size.
CardFrame {
    id: pane

    required property AnalyzerModel analyzer
    required property runRecord run
    readonly property runFacts facts: Runs.facts(run)
    readonly property bool hasRemarks: Runs.hasRemarks(run)

    signal collapse
    signal remove

    function rename(): void {
        title.edit();
    }
    function share(): void {
        picture.clicked();
    }

    header: [
        StatusDot {
            color: PaletteKey.palette.goodDot
        },
        EditableRunTitle {
            id: title

            Layout.fillWidth: true
            Layout.preferredWidth: Math.ceil(implicitWidth) // layouts round, and half a pixel less cuts a word
            Layout.maximumWidth: Layout.preferredWidth
            facts: pane.facts
            room: Math.max(width, stampPlace.x - x - 12)
            onRenamed: text => pane.analyzer.renameRun(pane.facts.id, text)
        },
        OnDemand {
            active: !pane.isNarrow

            CompleteBadge {
                opacity: title.isEditing ? 0 : 1
            }
        },
        Item {
            Layout.fillWidth: true
        },
        OnDemand {
            id: stampPlace

            active: !pane.isNarrow
            component: stamp
        },
        ShareButton {
            id: picture

            runs: Runs.alone(pane.run)
            hint: qsTr("Share a report image")
            onClicked: image.makeReport(pane.run, pane.PaletteKey.palette)
        },
        IconButton {
            label: qsTr("Delete Run")
            symbol: "trash"
            onClicked: pane.remove()
        },
        IconButton {
            label: qsTr("Collapse")
            symbol: "chevron.up"
            onClicked: pane.collapse()
        }
    ]

    secondHeader: OnDemand {
        active: pane.isNarrow

        RowLayout {
            spacing: 12

            CompleteBadge {}
            OnDemand {
                active: true
                component: stamp
            }
        }
    }

    Component {
        id: stamp

        RunStamp {
            Layout.fillWidth: pane.isNarrow
            text: pane.facts.stamp
        }
    }

    RunHeadline {
        Layout.fillWidth: true
        facts: pane.facts
    }
    Separator {
        Layout.fillWidth: true
        color: PaletteKey.palette.borderSoft
    }
    CompareWithLast {
        analyzer: pane.analyzer
        runId: pane.facts.id
    }
    RunChart {
        Layout.fillWidth: true
        run: pane.run
        isExplained: true
    }
    Separator {
        Layout.fillWidth: true
        visible: strip.hasFacts
        color: PaletteKey.palette.borderSoft
    }
    RunCapturedStrip {
        id: strip

        Layout.fillWidth: true
        facts: pane.facts
        corner: pane.hasRemarks ? 0 : ViewMetrics.cardCorner
    }
    OnDemand {
        active: pane.hasRemarks

        RunRemarks {
            Layout.fillWidth: true
            run: pane.run
        }
    }

    Keys.onPressed: event => actions.take(event)
    data: RunActions {
        id: actions

        analyzer: pane.analyzer
        run: pane.run
        facts: pane.facts
        onRename: pane.rename()
        onShare: pane.share()
        onRemove: pane.remove()
    }
}
