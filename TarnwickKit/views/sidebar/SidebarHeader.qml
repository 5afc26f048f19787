pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

PlainText {
    leftPadding: ViewMetrics.sidebarInset
    rightPadding: ViewMetrics.sidebarInset
    bottomPadding: 11
    font: Typeface.display(14)
    color: PaletteKey.palette.heading
    Accessible.role: Accessible.Heading
}
