pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The figures of a finished run.
GridLayout {
    id: headline

    required property runFacts facts
    /// The smaller figures stand below.
    readonly property bool isNarrow: width > 0 && width < ViewMetrics.narrowCard
    readonly property bool isTight: write.isTight || read.isTight

    columnSpacing: 0
    rowSpacing: 0

    BigStat {
        id: write

        Layout.fillWidth: true
        Layout.preferredWidth: 1
        label: qsTr("Sequential Write")
        dot: PaletteKey.palette.coral
        inTwoLines: headline.isTight
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
        id: read

        Layout.fillWidth: true
        Layout.preferredWidth: 1
        label: qsTr("Sequential Read")
        dot: PaletteKey.palette.teal
        inTwoLines: headline.isTight
        value: headline.facts.readBps
        peak: headline.facts.readPeakBps
        least: headline.facts.readMinBps
        isMarked: headline.facts.isReadMarked
    }
    Separator {
        Layout.row: headline.isNarrow ? 1 : 0
        Layout.column: headline.isNarrow ? 0 : 3
        Layout.columnSpan: headline.isNarrow ? 3 : 1
        Layout.fillWidth: headline.isNarrow
        Layout.fillHeight: !headline.isNarrow
        color: PaletteKey.palette.borderSoft
    }
    Column {
        Layout.row: headline.isNarrow ? 2 : 0
        Layout.column: headline.isNarrow ? 0 : 4
        Layout.columnSpan: headline.isNarrow ? 3 : 1
        leftPadding: ViewMetrics.figurePadding
        rightPadding: ViewMetrics.figurePadding
        topPadding: ViewMetrics.figureMargin
        bottomPadding: ViewMetrics.figureMargin
        spacing: 9

        Repeater {
            model: headline.facts.minor

            MiniStat {
                required property infoItem modelData

                width: headline.isNarrow ? headline.width - 2 * ViewMetrics.figurePadding : Metrics.scaled(220)
                label: modelData.label
                value: modelData.value
                isMarked: modelData.warning
                note: modelData.note
                explanation: Words.ofTest(modelData.test)
            }
        }
    }
}
