pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A finished run's curves, with their legend.
ColumnLayout {
    id: view

    required property runRecord run
    /// In the window: with a crosshair, the unit, marks, and a line that explains them. An image has the curves alone.
    property bool isExplained: false

    spacing: 0

    RowLayout {
        Layout.fillWidth: true
        Layout.margins: ViewMetrics.cardPadding
        Layout.topMargin: 16
        Layout.bottomMargin: 10
        spacing: 14

        PlainText {
            Layout.fillWidth: true
            text: qsTr("Throughput over time")
            font: Typeface.mono(10.5, 1.5)
            color: PaletteKey.palette.text3
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        LegendItem {
            color: PaletteKey.palette.coral
            //: Noun: what a curve shows
            label: qsTr("Write")
        }
        LegendItem {
            color: PaletteKey.palette.teal
            //: Noun: what a curve shows
            label: qsTr("Read")
        }
    }
    ThroughputChart {
        Layout.fillWidth: true
        Layout.preferredHeight: ViewMetrics.chartHeight
        Layout.leftMargin: ViewMetrics.cardPadding
        Layout.rightMargin: ViewMetrics.cardPadding
        Layout.bottomMargin: explanation.active ? 8 : ViewMetrics.cardPadding
        axisUnit: view.isExplained ? "MB/s" : ""
        marked: view.isExplained
        readable: view.isExplained

        RunSeries {
            id: reading

            //: Noun: what a curve shows
            name: qsTr("Read")
            run: view.run
            curve: RunSeries.Read
            color: PaletteKey.palette.teal
            fill: PaletteKey.palette.readFill
        }
        RunSeries {
            id: writing

            //: Noun: what a curve shows
            name: qsTr("Write")
            run: view.run
            curve: RunSeries.Write
            color: PaletteKey.palette.coral
            fill: PaletteKey.palette.writeFill
        }
    }
    OnDemand {
        id: explanation

        active: view.isExplained && (reading.points.length > 1 || writing.points.length > 1)

        PlainText {
            Layout.fillWidth: true
            Layout.leftMargin: ViewMetrics.cardPadding
            Layout.rightMargin: ViewMetrics.cardPadding
            Layout.bottomMargin: 14
            text: qsTr("Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.")
            font: Typeface.text(11)
            color: view.PaletteKey.palette.text2
            wrapMode: Text.Wrap
        }
    }
}
