import QtQuick
import TarnwickKit.views

/// Marks the control that the keyboard would act on.
Rectangle {
    required property real corner

    radius: corner
    color: "transparent"
    border.width: 2
    border.color: PaletteKey.palette.teal
}
