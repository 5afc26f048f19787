pragma ComponentBehavior: Bound

import QtQuick
import OndelControls

/// Lies under the open drawer and over the main pane, which it dims. A press beside the drawer closes it; nothing goes
/// through to the main pane.
MouseArea {
    id: shade

    required property Item drawer

    signal closed

    hoverEnabled: true
    acceptedButtons: Qt.AllButtons
    onPressed: mouse => {
        if (!drawer.contains(mapToItem(drawer, mouse.x, mouse.y)))
            closed();
    }
    onWheel: wheel => wheel.accepted = true

    Rectangle {
        anchors.fill: parent
        color: Qt.rgba(0, 0, 0, Metrics.dimming)
    }
}
