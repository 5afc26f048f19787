import QtQuick
import TarnwickKit.views

Text {
    leftPadding: 4
    rightPadding: 4
    bottomPadding: 11
    font: Typeface.display(14)
    color: PaletteKey.palette.heading
    Accessible.role: Accessible.Heading
    Accessible.name: text
}
