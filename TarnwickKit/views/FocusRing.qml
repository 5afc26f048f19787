import QtQuick
import QtQuick.Templates as T
import TarnwickKit.views

/// Marks the control that the keyboard would act on, just outside its edge.
Rectangle {
    required property T.Control control
    property real corner: 10

    anchors.fill: control
    anchors.margins: -3
    z: 10
    visible: control.activeFocus && control.visualFocus
    radius: corner + 3
    color: "transparent"
    border.width: 2
    border.color: PaletteKey.palette.teal
}
