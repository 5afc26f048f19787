pragma ComponentBehavior: Bound

import QtQuick

/// Shows that work is in progress. It advances twelve times a second: a smooth rotation would redraw the window sixty
/// times a second during a measurement.
Item {
    id: spinner

    property color color: "gray"
    property int step: 0
    /// If false, its owner sets `step`.
    property bool turnsItself: true

    implicitWidth: 16
    implicitHeight: 16
    Accessible.ignored: true

    Repeater {
        model: 8

        Rectangle {
            id: spoke

            required property int index

            x: spinner.width / 2 - 1
            y: 0
            width: 2
            height: 5
            radius: 1
            antialiasing: true
            color: spinner.color
            opacity: 1 - 0.75 * ((spinner.step - spoke.index + 8) % 8) / 7
            transform: Rotation {
                origin.x: 1
                origin.y: spinner.height / 2
                angle: spoke.index * 45
            }
        }
    }
    Timer {
        interval: 83
        repeat: true
        running: spinner.visible && spinner.turnsItself
        onTriggered: spinner.step = (spinner.step + 1) % 8
    }
}
