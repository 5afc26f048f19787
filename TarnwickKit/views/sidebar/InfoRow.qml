pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A labelled fact.
Item {
    id: row

    required property string label
    required property string value
    property bool warning: false

    implicitHeight: line.implicitHeight + 13
    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + value
    //: Spoken: the figure is a concern
    Accessible.description: warning ? qsTr("Warning") : ""

    CutTip {
        owner: row
        text: row.Accessible.name
        isCut: name.truncated || figure.truncated
    }
    RowLayout {
        id: line

        y: 6.5
        width: parent.width
        spacing: 8

        PlainText {
            id: name

            Layout.fillWidth: true
            Layout.minimumWidth: 40
            Layout.alignment: Qt.AlignBaseline
            text: row.label
            font: Typeface.text(12.5)
            color: PaletteKey.palette.text2
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        OnDemand {
            active: row.warning

            Symbol {
                Layout.rightMargin: -3
                name: "exclamationmark.triangle.fill"
                size: 10
                color: row.PaletteKey.palette.warning
            }
        }
        PlainText {
            id: figure

            Layout.maximumWidth: row.width - 48 - (row.warning ? 17 : 0)
            Layout.alignment: Qt.AlignBaseline
            text: row.value
            font: Typeface.mono(11.5)
            color: row.warning ? PaletteKey.palette.amber : PaletteKey.palette.text
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
    Separator {
        y: parent.height - 1
        width: parent.width
        color: PaletteKey.palette.borderSoft
    }
}
