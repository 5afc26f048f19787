pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

Item {
    implicitHeight: 21

    Separator {
        x: 4
        y: 20
        width: parent.width - 8
        color: PaletteKey.palette.border
    }
}
