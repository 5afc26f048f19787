pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The heading of the history, with what can be done to it.
RowLayout {
    id: head

    required property AnalyzerModel analyzer

    signal clearWanted

    spacing: 10

    HeadingText {
        text: head.analyzer.compareMode ? qsTr("Select runs to compare") : qsTr("Previous runs")
    }
    Separator {
        Layout.fillWidth: true
        color: PaletteKey.palette.border
    }
    OnDemand {
        active: !head.analyzer.compareMode

        RowLayout {
            spacing: head.spacing

            TextButton {
                visible: head.analyzer.canCompare
                //: Button: begins to choose runs
                label: qsTr("Compare")
                onClicked: head.analyzer.toggleCompareMode()
            }
            TextButton {
                //: Button: deletes all saved runs, after a question
                label: qsTr("Clear")
                onClicked: head.clearWanted()
            }
        }
    }
    OnDemand {
        active: head.analyzer.compareMode

        RowLayout {
            spacing: head.spacing

            TextButton {
                enabled: head.analyzer.compareSelectionCount >= 2
                //: Button: compares so many chosen runs
                label: qsTr("Compare %n", "", head.analyzer.compareSelectionCount)
                textFont: Typeface.text(11, Font.DemiBold)
                textColor: PaletteKey.palette.heading
                onClicked: head.analyzer.beginComparison()
            }
            TextButton {
                label: qsTr("Cancel")
                onClicked: head.analyzer.toggleCompareMode()
            }
        }
    }
}
