pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// A throughput chart for use outside of the window, with its own palette. Points are seconds and decimal megabytes
/// per second.
ThroughputChart {
    id: chart

    property list<point> write
    property list<point> read
    property bool dark: Appearance.dark

    PaletteKey.palette: dark ? Appearance.darkPalette : Appearance.lightPalette

    ChartSeries {
        //: Noun: what a curve shows
        name: qsTr("Read")
        points: chart.read
        color: PaletteKey.palette.teal
        fill: PaletteKey.palette.readFill
    }
    ChartSeries {
        //: Noun: what a curve shows
        name: qsTr("Write")
        points: chart.write
        color: PaletteKey.palette.coral
        fill: PaletteKey.palette.writeFill
    }
}
