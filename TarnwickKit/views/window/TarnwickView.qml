pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// The analyzer as a host application's window shows it.
/// Units: logical pixels. The smallest useful size of its window is leastWidth by leastHeight.
ContentView {
    readonly property int leastWidth: 360
    readonly property int leastHeight: 480
}
