pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tarnwick

/// What shows beside or over the main window. Each is loaded when it is first wanted, so that the window's start does
/// not wait for any of it.
Item {
    id: others

    required property AppDelegate delegate
    readonly property bool wantsReport: delegate.showReport

    function showAbout(): void {
        if (!about.item)
            about.setSource("AboutWindow.qml", {transientParent: Window.window});
        (about.item as AboutWindow).show();
    }
    function showSettings(): void {
        if (!settings.item)
            settings.setSource("SettingsWindow.qml", {updater: delegate.updater, transientParent: Window.window});
        (settings.item as SettingsWindow).show();
    }
    function showUpdates(): void {
        if (!updates.item)
            updates.setSource("UpdatesWindow.qml", {updater: delegate.updater.controller, transientParent: Window.window});
    }

    onWantsReportChanged: report.setSource(wantsReport ? "ReportSheet.qml" : "", {parent: T.Overlay.overlay})

    Loader {
        id: about
    }
    Loader {
        id: settings
    }
    Loader {
        id: updates
    }
    Loader {
        id: report
    }
    Connections {
        target: report.item

        function onClosed(): void {
            others.delegate.showReport = false;
        }
    }
    Connections {
        target: others.delegate.updater.controller

        function onStateChanged(): void {
            others.showUpdates();
        }
    }
}
