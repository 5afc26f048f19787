pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// Asks before a run writes until the disk is full.
Alert {
    required property AnalyzerModel analyzer

    title: qsTr("Fill the disk?")
    message: qsTr("The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.").arg(Format.bytes(Format.defaultLeaveFree))
    cancelText: qsTr("Cancel")
    acceptText: qsTr("Fill Disk")
    onAccepted: analyzer.start()
}
