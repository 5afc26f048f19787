pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// Says that runs were deleted, and offers to bring them back.
Card {
    id: note

    required property AnalyzerModel analyzer

    implicitWidth: line.width + 28
    implicitHeight: line.height + 20
    radius: Metrics.menuCorner
    color: PaletteKey.palette.panel
    outline: PaletteKey.palette.border
    shadowColor: PaletteKey.palette.shadow
    shadowRadius: Metrics.menuShadow
    shadowOffset: Metrics.menuShadowOffset

    Row {
        id: line

        anchors.centerIn: parent
        spacing: 6

        PlainText {
            anchors.verticalCenter: parent.verticalCenter
            text: note.analyzer.undoableRuns > 1 ? qsTr("%n runs deleted", "", note.analyzer.undoableRuns) : qsTr("Run deleted")
            font: Typeface.text(13)
            color: PaletteKey.palette.text
        }
        PlainText {
            anchors.verticalCenter: parent.verticalCenter
            text: "–"
            font: Typeface.text(13)
            color: PaletteKey.palette.text2
            Accessible.ignored: true
        }
        TextButton {
            anchors.verticalCenter: parent.verticalCenter
            label: qsTr("Undo")
            hint: ViewMath.keyName("Ctrl+Z")
            textFont: Typeface.text(13, Font.DemiBold)
            textColor: PaletteKey.palette.link
            onClicked: note.analyzer.undoDeletion()
        }
    }
}
