pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// The analyzer as a host application's window shows it.
/// Units: logical pixels. Its smallest useful size is leastWidth by leastHeight.
ContentView {
    readonly property int leastWidth: 900
    readonly property int leastHeight: 620
}
