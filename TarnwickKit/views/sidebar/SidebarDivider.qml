pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

Item {
    implicitHeight: 21

    Separator {
        x: ViewMetrics.sidebarInset
        y: 20
        width: parent.width - 2 * x
        color: PaletteKey.palette.border
    }
}
