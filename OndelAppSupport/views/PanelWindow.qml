pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window

/// A secondary window of a fixed size. Escape and Ctrl+W close it.
Window {
    id: panel

    required property real wantedWidth
    required property real wantedHeight

    width: wantedWidth
    height: wantedHeight
    minimumWidth: wantedWidth
    maximumWidth: wantedWidth
    minimumHeight: wantedHeight
    maximumHeight: wantedHeight
    flags: Qt.Dialog | Qt.WindowTitleHint | Qt.WindowCloseButtonHint
    color: palette.window

    /// Opens the window, or brings the open one to the front.
    function show(): void {
        visible = true;
        raise();
        requestActivate();
    }

    Shortcut {
        sequences: ["Escape", "Ctrl+W"]
        onActivated: panel.close()
    }
}
