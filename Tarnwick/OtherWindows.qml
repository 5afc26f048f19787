pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls
import Tarnwick

/// The secondary windows and the report sheet. Each is created when it is first shown, to keep the start of the main
/// window fast.
Item {
    id: others

    required property AppDelegate delegate
    readonly property Item overlay: T.Overlay.overlay

    function showAbout(): void {
        about.active = true;
        (about.object as AboutWindow).show();
    }
    function showSettings(): void {
        settings.active = true;
        (settings.object as SettingsWindow).show();
    }

    OnDemand {
        id: about

        AboutWindow {
            transientParent: others.Window.window
        }
    }
    OnDemand {
        id: settings

        SettingsWindow {
            updater: others.delegate.updater
            transientParent: others.Window.window
        }
    }
    OnDemand {
        id: updates

        UpdatesWindow {
            updater: others.delegate.updater.controller
            transientParent: others.Window.window
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
