pragma ComponentBehavior: Bound

import QtQuick
import OndelAppSupport.views
import OndelControls
import TarnwickKit.views
import Tarnwick

/// The main window.
Window {
    id: window

    required property AppDelegate delegate

    readonly property real menuWidth: commands.implicitWidth
    readonly property real menuHeight: commands.height
    readonly property bool showsLetters: menuKey.isHeld

    signal aboutWanted
    signal settingsWanted
    signal menuWanted

    /// Starts a run like the toolbar's button.
    function run(): void {
        view.run();
    }

    title: delegate.windowTitle
    width: 1180
    height: 780
    minimumWidth: view.leastWidth
    minimumHeight: view.leastHeight
    visible: true
    flags: Qt.Window | (WindowFrames.areOurs ? Qt.FramelessWindowHint : 0)
    color: view.color
    palette: StandardPalettes.current
    PaletteKey.palette: Appearance.palette
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true // menus and sheets too

    Component.onCompleted: delegate.setWindow(window)
    onClosing: close => {
        close.accepted = false;
        delegate.terminate();
    }

    MenuPlace {
        id: commands

        width: parent.width
        window: window
    }
    TarnwickView {
        id: view

        anchors.top: commands.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        analyzer: window.delegate.model

        sidebarFooter: OnDemand {
            active: commands.bar !== null && AppSupport.nudges.showsNote
            file: "SupportFoot.qml"
        }
    }
    WindowPlace {
        window: window
    }
    MenuKey {
        id: menuKey

        window: window
        onTapped: window.menuWanted()
    }
    EscapeKey {
        window: window
        onPressed: {
            if (window.delegate.model.isBusy)
                window.delegate.model.cancel();
        }
    }
    DropPlace {
        anchors.fill: parent
        delegate: window.delegate
    }
    Loader {
        anchors.fill: parent
        // By its file's name: elsewhere it would be compiled before the first frame for nothing.
        Component.onCompleted: {
            if (WindowFrames.areOurs)
                setSource("MainFrame.qml", {
                    host: window
                });
        }
    }
}
