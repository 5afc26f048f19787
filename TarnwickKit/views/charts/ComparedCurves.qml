pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The curves of compared runs, laid over each other: one chart for writing, one for reading.
Column {
    id: curves

    required property comparedRuns runs

    OnDemand {
        active: curves.runs.hasWriteCurves

        ComparedChart {
            width: curves.width
            //: Title of a chart: the rate of the write test
            title: qsTr("Write over time")
            runs: curves.runs
            curve: RunSeries.Write
        }
    }
    OnDemand {
        active: curves.runs.hasReadCurves

        ComparedChart {
            width: curves.width
            //: Title of a chart: the rate of the read test
            title: qsTr("Read over time")
            runs: curves.runs
            curve: RunSeries.Read
        }
    }
}
