pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

RowLayout {
    id: stat

    required property string label
    required property string value

    spacing: 8
    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + figure.text

    PlainText {
        Layout.fillWidth: true
        Layout.alignment: Qt.AlignBaseline
        text: stat.label
        font: Typeface.text(12)
        color: PaletteKey.palette.text2
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
}
