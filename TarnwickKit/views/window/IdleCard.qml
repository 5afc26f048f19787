pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

Card {
    id: card

    required property AnalyzerModel analyzer
    readonly property bool hasTarget: analyzer.targetFolder.length > 0

    implicitHeight: column.implicitHeight + 92
    radius: ViewMetrics.cardCorner
    color: PaletteKey.palette.panel
    outline: PaletteKey.palette.border

    Column {
        id: column

        x: 24
        y: 46
        width: parent.width - 48
        spacing: 10

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "gauge.with.dots.needle.bottom.50percent"
            size: 30
            color: PaletteKey.palette.teal
        }
        PlainText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: card.hasTarget ? qsTr("Ready to benchmark") : qsTr("Choose a volume to begin")
            font: Typeface.display(16)
            color: PaletteKey.palette.text
            wrapMode: Text.Wrap
        }
        PlainText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: card.hasTarget ? qsTr("Adjust tests and settings on the left, then press Run Benchmark.")
                                          : qsTr("Pick a mounted volume or folder from the toolbar.")
            font: Typeface.text(13)
            color: PaletteKey.palette.text2
            wrapMode: Text.Wrap
        }
    }
}
