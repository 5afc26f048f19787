pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

PlainText {
    leftPadding: 4
    rightPadding: 4
    bottomPadding: 11
    font: Typeface.display(14)
    color: PaletteKey.palette.heading
    Accessible.role: Accessible.Heading
}
