pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// Stands at a figure that is not the disk's. Assistive technology hears it with the figure.
Symbol {
    id: mark

    implicitWidth: ViewMetrics.markSide
    implicitHeight: ViewMetrics.markSide
    name: "exclamationmark.octagon.fill"
    size: 12
    color: PaletteKey.palette.coralink

    HoverHandler {
        id: pointer
    }
    OnDemand {
        active: pointer.hovered

        HoverTip {
            owner: mark
            text: qsTr("Not the disk’s figure")
        }
    }
}
