pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A headline rate with its peak and its lowest sample. Units: bytes per second; NaN when absent.
ColumnLayout {
    id: stat

    required property string label
    required property color dot
    required property real value
    required property real peak
    required property real least
    property bool isMarked: false
    /// The peak and the lowest sample have no room side by side.
    readonly property bool isTight: whole.width > width - 2 * ViewMetrics.figurePadding
    property bool inTwoLines: isTight

    spacing: 6
    Layout.maximumWidth: Infinity // else the figures' width would limit it
    Layout.fillHeight: false // centred, so that one without a third line aligns with one that has it

    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + Runs.spoken(figure.text + " MB/s", isMarked) + (extremes.visible ? ", " + whole.text : "")
    Accessible.description: Words.sustained

    RowLayout {
        Layout.leftMargin: ViewMetrics.figurePadding
        Layout.rightMargin: ViewMetrics.figurePadding
        Layout.topMargin: ViewMetrics.figureMargin
        spacing: 7

        Card {
            implicitWidth: 9
            implicitHeight: 9
            radius: 2
            color: stat.dot
        }
        PlainText {
            Layout.fillWidth: true
            wrapMode: Text.Wrap
            text: stat.label
            font: Typeface.text(12)
            color: PaletteKey.palette.text2
            Accessible.ignored: true
        }
    }
    Row {
        id: line

        Layout.leftMargin: ViewMetrics.figurePadding
        Layout.rightMargin: ViewMetrics.figurePadding
        Layout.bottomMargin: extremes.visible ? 0 : ViewMetrics.figureMargin
        Layout.fillWidth: true
        Layout.preferredWidth: taken // without the padding
        layoutDirection: LayoutMirroring.enabled ? Qt.RightToLeft : Qt.LeftToRight // mirrored once more: a unit stands behind its figure
        leftPadding: LayoutMirroring.enabled ? Math.max(0, width - taken) : 0
        spacing: 6

        readonly property real taken: figure.width + spacing + unit.width + (stat.isMarked ? ViewMetrics.markSide + spacing : 0)

        PlainText {
            id: figure

            width: Math.min(implicitWidth, line.width - unit.width - line.spacing - (stat.isMarked ? ViewMetrics.markSide + line.spacing : 0))
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 9
            text: isNaN(stat.value) ? "--" : Format.mbValue(stat.value)
            font: Typeface.display(38)
            color: PaletteKey.palette.text
            Accessible.ignored: true
        }
        PlainText {
            id: unit

            anchors.baseline: figure.baseline
            text: "MB/s"
            font: Typeface.text(15, Font.Medium)
            color: PaletteKey.palette.text3
            Accessible.ignored: true
        }
        OnDemand {
            active: stat.isMarked

            FigureMark {
                anchors.verticalCenter: unit.verticalCenter
            }
        }
    }
    PlainText {
        id: extremes

        Layout.leftMargin: ViewMetrics.figurePadding
        Layout.rightMargin: ViewMetrics.figurePadding
        Layout.bottomMargin: ViewMetrics.figureMargin
        Layout.fillWidth: true
        elide: Text.ElideRight
        visible: !isNaN(stat.peak) && !isNaN(stat.least)
        text: !visible || !stat.inTwoLines ? whole.text
            //: The highest and the lowest rate, on two lines
            : qsTr("peak %1\nmin %2").arg(Format.mbValue(stat.peak)).arg(Format.mbValue(stat.least))
        font: Typeface.mono(11)
        color: PaletteKey.palette.text3
        Accessible.ignored: true

        TextMetrics {
            id: whole

            text: extremes.visible ? qsTr("peak %1 · min %2").arg(Format.mbValue(stat.peak)).arg(Format.mbValue(stat.least)) : ""
            font: Typeface.mono(11)
        }
    }
    HoverHandler {
        id: pointer
    }
    OnDemand {
        active: pointer.hovered

        HoverTip {
            owner: stat
            text: Words.sustained
        }
    }
}
