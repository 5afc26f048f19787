import QtQuick
import QtQuick.Layouts
import TarnwickKit.views

/// The figures of a finished run.
RowLayout {
    id: headline

    required property runFigures run

    spacing: 0

    BigStat {
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        label: qsTr("Sequential Write")
        dot: PaletteKey.palette.coral
        value: headline.run.writeBps
        peak: headline.run.writePeakBps
        least: headline.run.writeMinBps
    }
    Rule {
        Layout.fillHeight: true
        color: PaletteKey.palette.borderSoft
    }
    BigStat {
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        label: qsTr("Sequential Read")
        dot: PaletteKey.palette.teal
        value: headline.run.readBps
        peak: headline.run.readPeakBps
        least: headline.run.readMinBps
    }
    Rule {
        Layout.fillHeight: true
        color: PaletteKey.palette.borderSoft
    }
    Column {
        Layout.preferredWidth: 220
        leftPadding: 20
        rightPadding: 20
        topPadding: 17
        bottomPadding: 17
        spacing: 9

        MiniStat {
            width: 180
            label: qsTr("Random %1 read").arg(Format.block(headline.run.randomBlock))
            value: isNaN(headline.run.randomReadIOPS) ? "" : Format.grouped(headline.run.randomReadIOPS) + " IOPS"
        }
        MiniStat {
            width: 180
            label: qsTr("Random %1 write").arg(Format.block(headline.run.randomBlock))
            value: isNaN(headline.run.randomWriteIOPS) ? "" : Format.grouped(headline.run.randomWriteIOPS) + " IOPS"
        }
        MiniStat {
            width: 180
            label: qsTr("File operations")
            value: isNaN(headline.run.fileOpsPerSec) ? "" : Format.grouped(headline.run.fileOpsPerSec) + " /s"
        }
    }
}
