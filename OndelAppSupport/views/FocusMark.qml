pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// Marks the control that the keyboard would act on, just outside its edge.
Card {
    required property T.Control control

    anchors.fill: control
    anchors.margins: -3
    z: 10
    visible: control.visualFocus
    radius: 9
    outlineWidth: 2
    outline: control.palette.highlight
}
