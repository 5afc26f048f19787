pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The running benchmark.
CardFrame {
    id: pane

    required property AnalyzerModel analyzer
    required property string volumeName

    header: [
        Spinner {
            color: PaletteKey.palette.text3
            turnsItself: false
            step: live.beat % 8
        },
        RunTitle {
            id: name

            text: pane.volumeName

            CutTip {
                owner: name
                text: name.text
                isCut: name.truncated
            }
        },
        OnDemand {
            active: !pane.isNarrow && pane.analyzer.liveTestTitle.length > 0
            component: test
        },
        Item {
            Layout.fillWidth: true
        },
        LiveFigure {
            run: live
        }
    ]

    secondHeader: OnDemand {
        active: pane.isNarrow && pane.analyzer.liveTestTitle.length > 0
        component: test
    }

    Component {
        id: test

        Chip {
            text: pane.analyzer.liveTestTitle
        }
    }

    LiveRun {
        id: live

        analyzer: pane.analyzer
    }
    ColumnLayout {
        Layout.leftMargin: ViewMetrics.cardPadding
        Layout.rightMargin: ViewMetrics.cardPadding
        Layout.topMargin: 16
        Layout.bottomMargin: ViewMetrics.cardPadding
        spacing: 10

        ProgressTrack {
            Layout.fillWidth: true
            //: %1 is the name of a test, %2 how much of it is done
            label: pane.analyzer.liveTestTitle ? qsTr("%1: %2 %").arg(pane.analyzer.liveTestTitle).arg(live.spokenPercent) : live.runLine
            //: %1 is a rate, %2 its unit, %3 how much is done of how much
            Accessible.description: live.figure ? qsTr("%1 %2, %3").arg(live.figure).arg(live.unit).arg(live.amount) : live.amount
            trackColor: PaletteKey.palette.track
            fillColor: PaletteKey.palette.accent
            to: Math.max(1, live.totalBytes)
            value: live.completedBytes
        }
        RowLayout {
            PlainText {
                Layout.fillWidth: true
                text: live.amount
                horizontalAlignment: Text.AlignLeft
                font: Typeface.mono(11)
                color: PaletteKey.palette.text3
                Accessible.ignored: true // the bar's description has it
            }
            OnDemand {
                active: live.temperatures.length > 0

                LegendItem {
                    id: drive

                    Layout.maximumHeight: Metrics.scaled(14)
                    color: PaletteKey.palette.text2
                    //: The temperature of the drive
                    label: qsTr("Drive %1 °C").arg(Math.round(live.celsius))
                    Accessible.role: Accessible.StaticText
                    Accessible.name: drive.label
                }
            }
        }
        ThroughputChart {
            id: chart

            readonly property bool reads: pane.analyzer.liveTest === "sequentialRead"

            Layout.fillWidth: true
            Layout.preferredHeight: ViewMetrics.chartHeight
            live: true
            axisUnit: live.unit
            readable: true
            temperatures: live.temperatures
            temperatureColor: PaletteKey.palette.text2

            LiveSeries {
                run: live
                name: pane.analyzer.liveTestTitle
                unit: live.unit
                color: chart.reads ? chart.PaletteKey.palette.teal : chart.PaletteKey.palette.coral
                fill: chart.reads ? chart.PaletteKey.palette.readFill : chart.PaletteKey.palette.writeFill
            }
        }
    }
    LiveTests {
        Layout.fillWidth: true
        run: live
    }
}
