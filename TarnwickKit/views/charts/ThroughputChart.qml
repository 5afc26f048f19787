pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// Rate over time: one or more curves with axes. Its series are its children.
ThroughputCanvas {
    id: chart

    property string title: qsTr("Throughput over time")
    /// A crosshair reads the curves, by pointer and by arrow keys.
    property bool readable: false
    readonly property Crosshair crosshair: reader.object as Crosshair

    gridColor: PaletteKey.palette.grid
    labelColor: PaletteKey.palette.text3
    groundColor: PaletteKey.palette.panel
    textScale: Metrics.textScale
    activeFocusOnTab: readable

    Accessible.role: Accessible.Chart
    Accessible.name: chart.title
    Accessible.description: chart.crosshair && chart.activeFocus && chart.crosshair.sentence !== "" ? chart.crosshair.sentence : chart.summary
    Accessible.focusable: readable
    Keys.onPressed: event => {
        if (chart.crosshair)
            chart.crosshair.take(event);
    }

    data: OnDemand {
        id: reader

        active: chart.readable

        Crosshair {
            chart: chart
            width: chart.width
            height: chart.height
        }
    }
}
