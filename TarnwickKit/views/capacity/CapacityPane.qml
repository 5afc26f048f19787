pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The capacity check of the target's volume: the choices, the running check or what one has found, and the former ones.
CardFrame {
    id: pane

    required property AnalyzerModel analyzer
    required property string volumeName ///< "" while it is not known
    readonly property string shownName: check.hasRecord ? check.title : volumeName
    readonly property bool showsChoices: !check.isRunning && !check.hasRecord

    headerPadding: 14
    header: [
        VolumeBadge {
            color: PaletteKey.palette.teal2
            endColor: PaletteKey.palette.blue
            outline: "transparent"
            symbol: "checkmark.shield.fill"
            symbolSize: 13
            symbolWeight: Font.Normal
        },
        PlainText {
            id: heading

            Layout.fillWidth: true
            text: pane.shownName ? qsTr("Capacity of %1").arg(pane.shownName) : qsTr("Capacity of the volume")
            font: Typeface.display(16)
            color: PaletteKey.palette.text
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading

            CutTip {
                owner: heading
                text: heading.text
                isCut: heading.truncated
            }
        },
        IconButton {
            //: Button: leaves the capacity check
            label: qsTr("Close")
            hint: qsTr("Back to the runs")
            symbol: "xmark"
            onClicked: pane.analyzer.showsCheck = false
        }
    ]

    LiveCheck {
        id: check

        analyzer: pane.analyzer
    }
    OnDemand {
        active: check.failureMessage.length > 0

        FailureBanner {
            Layout.fillWidth: true
            Layout.margins: ViewMetrics.cardPadding
            Layout.bottomMargin: 0
            message: check.failureMessage
            explanation: check.failureExplanation
        }
    }
    OnDemand {
        active: pane.showsChoices

        CapacityChoices {
            Layout.fillWidth: true
            Layout.margins: ViewMetrics.cardPadding
            check: check
            canStart: pane.analyzer.targetFolder.length > 0 && !pane.analyzer.isBusy
        }
    }
    OnDemand {
        active: check.isRunning

        CapacityLive {
            Layout.fillWidth: true
            Layout.margins: ViewMetrics.cardPadding
            check: check
        }
    }
    OnDemand {
        active: check.hasRecord && !check.isRunning

        CapacityFinding {
            Layout.fillWidth: true
            Layout.margins: ViewMetrics.cardPadding
            check: check
        }
    }
    OnDemand {
        active: !check.isRunning && check.checks.length > 0

        FormerChecks {
            Layout.fillWidth: true
            check: check
        }
    }
}
