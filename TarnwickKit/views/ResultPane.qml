import QtQuick
import QtQuick.Layouts
import TarnwickKit.views

/// What the last run brought.
CardFrame {
    id: pane

    required property AnalyzerModel analyzer
    required property string volumeName

    header: [
        StatusDot {
            color: PaletteKey.palette.goodDot
        },
        Words {
            Layout.fillWidth: true
            Layout.maximumWidth: implicitWidth
            text: pane.volumeName
            font: Typeface.display(16)
            color: PaletteKey.palette.text
            elide: Text.ElideRight
        },
        CompleteBadge {},
        Item {
            Layout.fillWidth: true
        }
    ]

    RunHeadline {
        Layout.fillWidth: true
        run: last.figures
    }
    LastRun {
        id: last

        analyzer: pane.analyzer
    }
}
