pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelAppSupport.views
import OndelControls
import Tarnwick

/// The secondary windows and the report sheet. Each is created when it is first shown, and none of them is even
/// compiled before the main window's first frame, to keep the start fast.
Item {
    id: others

    required property TarnwickWindow window
    readonly property AppDelegate delegate: window.delegate
    readonly property Item overlay: T.Overlay.overlay

    Connections {
        target: others.window

        function onAboutWanted(): void {
            about.active = true;
            (about.object as AboutWindow).show();
        }
        function onSettingsWanted(): void {
            settings.active = true;
            (settings.object as SettingsWindow).show();
        }
    }

    OnDemand {
        id: about

        AboutWindow {
            transientParent: others.window
        }
    }
    OnDemand {
        id: settings

        SettingsWindow {
            updater: others.delegate.updater
            transientParent: others.window
        }
    }
    OnDemand {
        id: updates

        active: others.delegate.updater.controller.state !== UpdaterController.Idle

        UpdatesWindow {
            updater: others.delegate.updater.controller
            transientParent: others.window
        }
    }
    Connections {
        target: others.delegate.updater.controller

        function onStateChanged(): void {
            updates.active = true;
        }
    }
    OnDemand {
        active: others.delegate.showReport

        ReportSheet {
            parent: others.overlay
            onClosed: others.delegate.showReport = false
        }
    }
}
