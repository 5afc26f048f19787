pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls
import TarnwickKit.views

/// A determinate progress bar.
T.ProgressBar {
    id: bar

    required property string label

    implicitHeight: 6
    Accessible.role: Accessible.ProgressBar
    // The toolkit tells assistive technology no value of a progress bar, so it is part of its name.
    Accessible.name: qsTr("%1: %2 %").arg(label).arg(Math.floor(100 * position))

    background: Card {
        radius: height / 2
        color: PaletteKey.palette.track
    }
    contentItem: Item {
        Card {
            width: bar.visualPosition * parent.width
            height: parent.height
            radius: height / 2
            color: PaletteKey.palette.accent
        }
    }
}
