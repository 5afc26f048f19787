pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
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
    PlainButton {
        id: save

        label: qsTr("Export…")
        hint: qsTr("Save these figures as a text file")
        corner: 7
        leftPadding: 10
        rightPadding: 10
        topPadding: 5
        bottomPadding: 5
        onClicked: list.analyzer.exportSMART()

        background: Card {
            radius: save.corner
            color: PaletteKey.palette.panel
            outline: PaletteKey.palette.border
        }
        contentItem: Row {
            spacing: 5

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "square.and.arrow.up"
                size: 12
                color: PaletteKey.palette.text2
            }
            PlainText {
                text: save.label
                font: Typeface.text(12)
                color: PaletteKey.palette.text2
                Accessible.ignored: true
            }
        }
    }
}
