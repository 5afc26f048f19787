pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// A determinate progress bar.
T.ProgressBar {
    id: bar

    /// Must contain the percentage: Qt does not report the value of a progress bar to assistive technology.
    required property string label
    readonly property int percent: Math.floor(100 * position)
    property color trackColor: palette.mid
    property color fillColor: palette.highlight

    implicitHeight: 6
    Accessible.role: Accessible.ProgressBar
    Accessible.name: label

    background: Card {
        radius: height / 2
        color: bar.trackColor
    }
    contentItem: Item {
        Card {
            width: bar.visualPosition * parent.width
            height: parent.height
            radius: height / 2
            color: bar.fillColor
        }
    }
}
