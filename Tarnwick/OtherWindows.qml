pragma ComponentBehavior: Bound

import QtQuick
import OndelAppSupport.views
import Tarnwick

/// What shows beside or over the main window. Each is made when it is first wanted, in a repeater of one.
Item {
    id: others

    required property AppDelegate delegate

    signal aboutWanted
    signal settingsWanted

    function showAbout(): void {
        about.model = 1;
        aboutWanted();
    }
    function showSettings(): void {
        settings.model = 1;
        settingsWanted();
    }

    Repeater {
        id: about

        model: 0

        Item {
            AboutPanel {
                id: panel

                palette: StandardPalettes.current
            }
            Connections {
                target: others

                function onAboutWanted(): void {
                    panel.show();
                }
            }
        }
    }
    Repeater {
        id: settings

        model: 0

        Item {
            SettingsWindow {
                id: form

                updater: others.delegate.updater
                palette: StandardPalettes.current
            }
            Connections {
                target: others

                function onSettingsWanted(): void {
                    form.show();
                }
            }
        }
    }
    Repeater {
        id: updates

        model: 0

        Item {
            UpdateWindow {
                updater: others.delegate.updater.controller
                palette: StandardPalettes.current
            }
        }
    }
    Connections {
        target: others.delegate.updater.controller

        function onStateChanged(): void {
            updates.model = 1;
        }
    }
    Repeater {
        model: others.delegate.showReport ? 1 : 0

        Item {
            ReportSheet {
                onClosed: others.delegate.showReport = false
            }
        }
    }
}
