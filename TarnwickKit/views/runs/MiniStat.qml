pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A labelled figure of a run, with what belongs to it in a line below.
ColumnLayout {
    id: stat

    required property string label
    required property string value
    property bool isMarked: false
    property string note: ""
    property string explanation: ""

    spacing: 1
    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + Runs.spoken(figure.text, isMarked) + (note === "" ? "" : ", " + note)
    Accessible.description: explanation

    RowLayout {
        spacing: 8

        PlainText {
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignBaseline
            text: stat.label
            font: Typeface.text(12)
            color: PaletteKey.palette.text2
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        PlainText {
            id: figure

            Layout.alignment: Qt.AlignBaseline
            text: stat.value.length > 0 ? stat.value : "--"
            font: Typeface.mono(12.5)
            color: PaletteKey.palette.text
            Accessible.ignored: true
        }
        OnDemand {
            active: stat.isMarked

            FigureMark {
                Layout.leftMargin: -2
            }
        }
    }
    OnDemand {
        active: stat.note !== ""

        PlainText {
            Layout.fillWidth: true
            text: stat.note
            horizontalAlignment: Text.AlignRight
            font: Typeface.mono(10.5)
            color: stat.PaletteKey.palette.text2
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
    HoverHandler {
        id: pointer
    }
    OnDemand {
        active: pointer.hovered && stat.explanation !== ""

        HoverTip {
            owner: stat
            text: stat.explanation
        }
    }
}
