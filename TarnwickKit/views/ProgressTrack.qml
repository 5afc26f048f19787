import QtQuick
import QtQuick.Templates as T
import TarnwickKit.views

/// A determinate progress bar.
T.ProgressBar {
    id: bar

    required property string label

    implicitHeight: 6
    Accessible.role: Accessible.ProgressBar
    Accessible.name: label

    background: Rectangle {
        radius: height / 2
        color: PaletteKey.palette.track
    }
    contentItem: Item {
        Rectangle {
            width: bar.visualPosition * parent.width
            height: parent.height
            radius: height / 2
            color: PaletteKey.palette.accent
        }
    }
}
