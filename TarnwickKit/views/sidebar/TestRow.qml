pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A test: a check box to select it, and its figure of the last run.
ToggleButton {
    id: row

    required property string title
    required property string figure
    required property string explanation
    property bool isMarked: false

    label: title
    corner: 9
    leftPadding: 11
    rightPadding: 11
    topPadding: 9
    bottomPadding: 9

    hint: explanation
    explains: true
    //: %1 is the figure of a test, %2 what the test does
    detail: figure === "" ? explanation : qsTr("%1. %2").arg(Runs.spoken(figure, isMarked)).arg(explanation)

    background: Card {
        radius: row.corner
        color: row.on ? row.PaletteKey.palette.sel : "transparent"
        outline: row.hovered ? row.frameColor : "transparent"
    }
    contentItem: RowLayout {
        id: line

        spacing: 11

        TickBox {
            implicitWidth: 18
            implicitHeight: 18
            radius: 6
            ticked: row.on
            activeColor: row.PaletteKey.palette.accent
            idleColor: row.PaletteKey.palette.panel
            idleOutline: row.PaletteKey.palette.border
            outlineWidth: 1.5
            markSize: 9
            markColor: row.PaletteKey.palette.onAccent
        }
        PlainText {
            Layout.fillWidth: true
            text: row.title
            font: Typeface.text(13.5, Font.Medium)
            color: row.PaletteKey.palette.text
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        OnDemand {
            active: row.isMarked

            FigureMark {
                Layout.leftMargin: 4 - line.spacing
            }
        }
        PlainText {
            Layout.leftMargin: 4 - parent.spacing // a smaller gap, so that long titles fit
            text: row.figure
            font: Typeface.mono(11)
            color: row.PaletteKey.palette.text3
            Accessible.ignored: true
        }
    }
}
