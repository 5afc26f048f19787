pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// Shows a text whole, in a tip, while the pointer is over it and it is cut.
HoverHandler {
    id: pointer

    required property Item owner
    required property string text
    required property bool isCut

    readonly property OnDemand tip: OnDemand {
        parent: pointer.owner
        active: pointer.hovered && pointer.isCut

        HoverTip {
            owner: pointer.owner
            text: pointer.text
        }
    }
}
