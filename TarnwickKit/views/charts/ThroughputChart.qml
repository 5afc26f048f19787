pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// Rate over time: one or more curves with axes. Its series are its children.
ThroughputCanvas {
    id: chart

    property string title: qsTr("Throughput over time")

    gridColor: PaletteKey.palette.grid
    labelColor: PaletteKey.palette.text3

    Accessible.role: Accessible.Chart
    Accessible.name: chart.title
    Accessible.description: chart.summary
}
