pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls
import TarnwickKit.views
import Tarnwick

/// The place of the menu bar, which is made after the first frame: its menus take longer than drawing the window, and the
/// window needs its height alone.
Item {
    id: place

    required property Window window
    readonly property T.MenuBar bar: commands.object as T.MenuBar

    implicitWidth: bar?.implicitWidth ?? 0
    implicitHeight: bar?.implicitHeight ?? letters.implicitHeight + (WindowFrames.areOurs ? 16 : 12)

    PlainText {
        id: letters

        visible: false
        Accessible.ignored: true
        text: " "
        font: Typeface.text(13)
    }
    Connections {
        target: place.window
        enabled: !commands.active

        function onFrameSwapped(): void {
            commands.active = true;
        }
    }
    OnDemand {
        id: commands

        file: "TarnwickCommands.qml"
        given: ({
            window: place.window
        })
    }
}
