pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The sign of a run's kind of volume in its row.
Card {
    implicitWidth: ViewMetrics.badgeSide
    implicitHeight: ViewMetrics.badgeSide
    radius: 8
    endPoint: Qt.point(0, 1)

    Card {
        anchors.centerIn: parent
        width: 12
        height: 12
        radius: 3
        color: Qt.rgba(1, 1, 1, 0.85)
    }
}
