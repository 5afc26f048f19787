pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// The figures of the target's drive, and a button to export them.
Column {
    id: list

    required property AnalyzerModel analyzer
    required property TargetFacts target

    spacing: 4

    InfoList {
        width: parent.width
        items: list.target.health
    }
    SmallButton {
        label: qsTr("Export…")
        hint: qsTr("Save these figures as a text file")
        symbol: "square.and.arrow.up"
        onClicked: list.analyzer.exportSMART()
    }
}
