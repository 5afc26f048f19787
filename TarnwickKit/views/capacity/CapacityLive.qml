pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The running capacity check.
ColumnLayout {
    id: live

    required property LiveCheck check

    spacing: 10

    RowLayout {
        spacing: 12

        HeadingText {
            Layout.fillWidth: true
            text: live.check.phase
            elide: Text.ElideRight
        }
        PlainText {
            text: live.check.figure
            font: Typeface.figures(22)
            color: PaletteKey.palette.text
            Accessible.ignored: true // the progress bar's description has it
        }
        SmallButton {
            label: qsTr("Stop")
            symbol: "stop.fill"
            onClicked: live.check.stop()
        }
    }
    ProgressTrack {
        Layout.fillWidth: true
        label: qsTr("%1: %2 %").arg(live.check.phase).arg(live.check.spokenPercent)
        Accessible.description: live.check.figure ? qsTr("%1, %2").arg(live.check.figure).arg(live.check.amount) : live.check.amount
        trackColor: PaletteKey.palette.track
        fillColor: PaletteKey.palette.accent
        value: live.check.share
    }
    RowLayout {
        spacing: 12

        PlainText {
            Layout.fillWidth: true
            text: live.check.amount
            horizontalAlignment: Text.AlignLeft
            font: Typeface.mono(11)
            color: PaletteKey.palette.text2
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        PlainText {
            text: live.check.runLine
            font: Typeface.mono(11)
            color: PaletteKey.palette.text2
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
    CapacityRange {
        Layout.fillWidth: true
        check: live.check
    }
}
