pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import TarnwickKit.views

Rectangle {
    id: toolbar

    required property AnalyzerModel analyzer
    required property TargetFacts target

    /// Starts a run like the run button.
    function run(): void {
        runButton.run();
    }

    implicitHeight: row.implicitHeight + 22
    color: PaletteKey.palette.panel2

    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: 18
        anchors.rightMargin: 18
        spacing: 14

        VolumeDropdown {
            Layout.maximumWidth: row.width - pill.implicitWidth - runButton.implicitWidth - 3 * row.spacing - 8
            analyzer: toolbar.analyzer
            target: toolbar.target
        }
        Item {
            Layout.fillWidth: true
            Layout.minimumWidth: 8
        }
        StatusPill {
            id: pill

            analyzer: toolbar.analyzer
        }
        RunButton {
            id: runButton

            analyzer: toolbar.analyzer
        }
    }
}
