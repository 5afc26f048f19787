pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The figures of a finished run.
RowLayout {
    id: headline

    required property runFacts facts

    spacing: 0

    BigStat {
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        label: qsTr("Sequential Write")
        dot: PaletteKey.palette.coral
        value: headline.facts.writeBps
        peak: headline.facts.writePeakBps
        least: headline.facts.writeMinBps
        isMarked: headline.facts.isWriteMarked
    }
    Separator {
        Layout.fillHeight: true
        color: PaletteKey.palette.borderSoft
    }
    BigStat {
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        label: qsTr("Sequential Read")
        dot: PaletteKey.palette.teal
        value: headline.facts.readBps
        peak: headline.facts.readPeakBps
        least: headline.facts.readMinBps
        isMarked: headline.facts.isReadMarked
    }
    Separator {
        Layout.fillHeight: true
        color: PaletteKey.palette.borderSoft
    }
    Column {
        leftPadding: ViewMetrics.figurePadding
        rightPadding: ViewMetrics.figurePadding
        topPadding: ViewMetrics.figureMargin
        bottomPadding: ViewMetrics.figureMargin
        spacing: 9

        Repeater {
            model: headline.facts.minor

            MiniStat {
                required property infoItem modelData

                width: Metrics.scaled(220)
                label: modelData.label
                value: modelData.value
                isMarked: modelData.warning
                note: modelData.note
                explanation: Words.ofTest(modelData.test)
            }
        }
    }
}
