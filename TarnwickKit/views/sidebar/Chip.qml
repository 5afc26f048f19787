pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

Card {
    id: chip

    property alias text: words.text
    property alias font: words.font
    property alias ink: words.color

    implicitWidth: words.implicitWidth + 18
    implicitHeight: words.implicitHeight + 6
    radius: height / 2
    color: PaletteKey.palette.chip

    PlainText {
        id: words

        anchors.centerIn: parent
        font: Typeface.text(12, Font.Medium)
        color: PaletteKey.palette.text2
    }
}
