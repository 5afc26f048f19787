pragma ComponentBehavior: Bound

import QtQuick.Layouts
import TarnwickKit.views

/// A run's rates in the history, with their curves.
RowLayout {
    id: figures

    required property runRecord run
    required property runFacts facts
    required property bool fillsWidth

    RunSummaryStat {
        Layout.preferredWidth: ViewMetrics.statWidth
        //: Noun, before the rate of the sequential write test
        label: qsTr("Write")
        value: figures.facts.writeBps
        isMarked: figures.facts.isWriteMarked
        dot: PaletteKey.palette.coral
    }
    RunSummaryStat {
        Layout.preferredWidth: ViewMetrics.statWidth
        //: Noun, before the rate of the sequential read test
        label: qsTr("Read")
        value: figures.facts.readBps
        isMarked: figures.facts.isReadMarked
        dot: PaletteKey.palette.teal
    }
    DualSparkline {
        Layout.fillWidth: figures.fillsWidth
        implicitWidth: figures.fillsWidth ? 40 : 96
        implicitHeight: 34
        run: figures.run
    }
}
