pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A rate in a row of runs. Units: bytes per second; NaN when absent.
Column {
    id: stat

    required property string label
    required property color dot
    required property real value
    property bool isMarked: false

    spacing: 2
    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + Runs.spoken(figure.text + " MB/s", isMarked)

    Row {
        anchors.left: parent.left
        spacing: 6

        Card {
            anchors.verticalCenter: parent.verticalCenter
            width: 8
            height: 8
            radius: 2
            color: stat.dot
        }
        PlainText {
            text: stat.label
            font: Typeface.text(11)
            color: stat.PaletteKey.palette.text2
            Accessible.ignored: true
        }
    }
    Row {
        anchors.left: parent.left
        layoutDirection: LayoutMirroring.enabled ? Qt.RightToLeft : Qt.LeftToRight // mirrored once more: a unit stands behind its figure
        spacing: 3

        PlainText {
            id: figure

            width: Math.min(implicitWidth, stat.width - unit.width - 3 - (stat.isMarked ? ViewMetrics.markSide + 3 : 0))
            // Before the row is laid out no size fits, and each size that is tried loads a font.
            fontSizeMode: stat.width > 0 ? Text.HorizontalFit : Text.FixedSize
            minimumPixelSize: 7
            text: isNaN(stat.value) ? "--" : Format.mbValue(stat.value)
            font: Typeface.figures(18)
            color: stat.PaletteKey.palette.text
            Accessible.ignored: true
        }
        PlainText {
            id: unit

            anchors.baseline: figure.baseline
            text: "MB/s"
            font: Typeface.text(11)
            color: stat.PaletteKey.palette.text3
            Accessible.ignored: true
        }
        OnDemand {
            active: stat.isMarked

            FigureMark {
                anchors.verticalCenter: unit.verticalCenter
            }
        }
    }
}
