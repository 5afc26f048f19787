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

    signal aboutWanted
    signal settingsWanted

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

    Component.onCompleted: delegate.setWindow(window)
    onClosing: close => {
        close.accepted = false;
        delegate.terminate();
    }

    TarnwickCommands {
        id: commands

        width: parent.width
        bottomPadding: WindowFrames.areOurs ? topPadding : 0
        app: window.delegate
        updater: window.delegate.updater
        onAboutWanted: window.aboutWanted()
        onSettingsWanted: window.settingsWanted()
        onRunWanted: view.run()
        showsLetters: menuKey.isHeld
    }
    TarnwickView {
        id: view

        anchors.top: commands.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        analyzer: window.delegate.model

        sidebarFooter: OnDemand {
            active: AppSupport.nudges.showsNote

            SupportBanner {
                highContrast: Appearance.contrast
                width: parent?.width ?? 0
            }
        }
    }
    WindowPlace {
        window: window
    }
    MenuKey {
        id: menuKey

        window: window
        onTapped: commands.openFirst()
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
