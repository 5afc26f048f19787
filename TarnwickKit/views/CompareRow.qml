import QtQuick
import QtQuick.Layouts
import OndelDrawing
import TarnwickKit.views

/// A run to pick for comparing; the row in it does nothing of its own.
PlainButton {
    id: row

    required property runRecord run
    property bool chosen: false
    readonly property runFacts facts: Runs.facts(run)

    signal wanted(chosen: bool)

    label: facts.title
    detail: facts.shortStamp
    corner: 12
    checkable: true
    checked: chosen
    onCheckedChanged: if (checked !== chosen) wanted(checked)

    contentItem: RowLayout {
        spacing: 12

        Symbol {
            name: row.chosen ? "checkmark.circle.fill" : "circle"
            size: 18
            color: row.chosen ? PaletteKey.palette.accent : PaletteKey.palette.text3
        }
        HistoryRow {
            Layout.fillWidth: true
            run: row.run
            live: false
            enabled: false
            Accessible.ignored: true
        }
    }
}
