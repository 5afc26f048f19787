pragma ComponentBehavior: Bound

import QtQuick
import OndelControls

/// The box and the mark of a check box.
Card {
    id: box

    required property bool ticked
    property color activeColor: palette.highlight
    property color idleColor: palette.base
    property color idleOutline: palette.mid
    property alias markColor: mark.color
    property alias markSize: mark.size
    property alias markWeight: mark.weight

    implicitWidth: 16
    implicitHeight: 16
    radius: 4
    color: ticked ? activeColor : idleColor
    outline: ticked ? "transparent" : idleOutline

    Symbol {
        id: mark

        anchors.centerIn: parent
        visible: box.ticked
        name: "checkmark"
        size: 10
        color: box.palette.highlightedText
    }
}
