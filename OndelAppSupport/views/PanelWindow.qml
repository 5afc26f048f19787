pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window
import OndelControls

/// A secondary window of a fixed size. Escape and Ctrl+W close it.
Window {
    id: panel

    required property real wantedWidth
    required property real wantedHeight
    /// Where the desktop draws no title bar and no border.
    property bool drawsFrame: false
    readonly property real wholeHeight: body.y + wantedHeight
    default property alias content: body.data

    width: wantedWidth
    height: wholeHeight
    minimumWidth: wantedWidth
    maximumWidth: wantedWidth
    minimumHeight: wholeHeight
    maximumHeight: wholeHeight
    flags: Qt.Dialog | (drawsFrame ? Qt.FramelessWindowHint : Qt.WindowTitleHint | Qt.WindowCloseButtonHint)
    color: palette.window
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    /// Opens the window, or brings the open one to the front.
    function show(): void {
        visible = true;
        raise();
        requestActivate();
    }

    Item {
        id: body

        y: panel.drawsFrame ? 36 : 0
        width: parent.width
        height: parent.height - y
    }
    OnDemand {
        active: panel.drawsFrame

        WindowFrame {
            width: panel.width
            height: panel.height
            titleHeight: body.y
            window: panel
        }
    }
    Shortcut {
        sequences: ["Escape", "Ctrl+W"]
        onActivated: panel.close()
    }
}
