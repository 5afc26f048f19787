pragma ComponentBehavior: Bound

import QtQuick
import OndelControls

/// A button of a title bar, with a drawing in lines of one pixel.
BaseButton {
    id: button

    default property alias drawing: sheet.data

    hint: label
    detail: ""
    corner: 6
    implicitWidth: 28
    implicitHeight: Metrics.leastTarget

    tip: Tip {
        parent: button
        text: button.hint
    }
    background: Rectangle {
        radius: button.corner
        color: Qt.alpha(button.palette.windowText, button.hovered ? 0.12 : 0)
    }
    contentItem: Item {
        Item {
            id: sheet

            anchors.centerIn: parent
            width: 10
            height: 10
        }
    }
}
