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

    signal aboutWanted
    signal settingsWanted

    title: delegate.windowTitle
    width: 1180
    height: 780
    minimumWidth: view.leastWidth
    minimumHeight: commands.height + view.leastHeight
    visible: true
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
    MenuKey {
        id: menuKey

        window: window
        onTapped: commands.openFirst()
    }
    EscapeKey {
        window: window
        onPressed: {
            if (window.delegate.model.isRunning)
                window.delegate.model.cancel();
        }
    }
    DropPlace {
        anchors.fill: parent
        delegate: window.delegate
    }
}
