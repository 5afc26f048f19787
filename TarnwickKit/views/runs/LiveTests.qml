pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The chosen tests of a run under way, each with a bar and its result, and how far the run is.
ColumnLayout {
    id: strip

    required property LiveRun run

    spacing: 0

    Separator {
        Layout.fillWidth: true
        color: PaletteKey.palette.borderSoft
    }
    RowLayout {
        Layout.fillWidth: true
        Layout.leftMargin: ViewMetrics.cardPadding
        Layout.rightMargin: ViewMetrics.cardPadding
        Layout.topMargin: 14
        spacing: 12
        Accessible.role: Accessible.StaticText
        Accessible.name: qsTr("Whole run")
        Accessible.description: strip.run.runLine

        PlainText {
            Layout.fillWidth: true
            text: qsTr("Whole run")
            font: Typeface.mono(10.5, 1.5)
            color: PaletteKey.palette.text2
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        PlainText {
            text: strip.run.runLine
            font: Typeface.mono(11)
            color: PaletteKey.palette.text2
            Accessible.ignored: true // the row's description has it
        }
    }
    GridLayout {
        Layout.fillWidth: true
        Layout.leftMargin: ViewMetrics.cardPadding
        Layout.rightMargin: ViewMetrics.cardPadding
        Layout.topMargin: 10
        Layout.bottomMargin: 16
        columns: strip.width < ViewMetrics.narrowCard ? 2 : Math.max(1, strip.run.tests.length)
        columnSpacing: 8
        rowSpacing: 12

        Repeater {
            model: strip.run.tests.length // its items stay when the tests go on

            ColumnLayout {
                id: test

                required property int index
                readonly property liveTest facts: strip.run.tests[index]

                Layout.fillWidth: true
                Layout.preferredWidth: 1 // all of the same width
                spacing: 5
                Accessible.role: Accessible.StaticText
                Accessible.name: facts.sentence

                ProgressTrack {
                    Layout.fillWidth: true
                    implicitHeight: 4
                    label: ""
                    trackColor: PaletteKey.palette.track
                    fillColor: test.facts.isDone ? PaletteKey.palette.goodDot : PaletteKey.palette.accent
                    value: test.facts.isDone ? 1 : test.facts.isRunning ? strip.run.share : 0
                    Accessible.ignored: true
                }
                RowLayout {
                    spacing: 4

                    Symbol {
                        name: test.facts.isDone ? "checkmark.circle.fill" : test.facts.isRunning ? "play.fill" : "circle"
                        size: 10
                        color: test.facts.isDone ? PaletteKey.palette.good : PaletteKey.palette.text3
                    }
                    PlainText {
                        Layout.fillWidth: true
                        text: test.facts.title
                        font: Typeface.text(11, test.facts.isRunning ? Font.DemiBold : Font.Medium)
                        color: test.facts.isRunning ? PaletteKey.palette.text : PaletteKey.palette.text2
                        wrapMode: Text.Wrap
                        maximumLineCount: 3
                        elide: Text.ElideRight
                        Accessible.ignored: true
                    }
                }
                PlainText {
                    Layout.fillWidth: true
                    text: test.facts.figure
                    font: Typeface.mono(11)
                    color: PaletteKey.palette.text2
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }
            }
        }
    }
}
