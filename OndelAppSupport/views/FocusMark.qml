import QtQuick
import QtQuick.Templates as T

/// Marks the control that the keyboard would act on, just outside its edge.
Rectangle {
    required property T.Control control

    anchors.fill: control
    anchors.margins: -3
    z: 10
    visible: control.visualFocus
    radius: 9
    color: "transparent"
    border.width: 2
    border.color: control.palette.highlight
}
