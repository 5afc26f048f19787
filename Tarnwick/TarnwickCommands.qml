pragma ComponentBehavior: Bound

import QtQuick
import OndelAppSupport.views
import TarnwickKit.views
import Tarnwick

/// The menu bar with all commands.
MenuStrip {
    id: commands

    required property TarnwickWindow window
    readonly property AppDelegate app: window.delegate
    readonly property UpdaterModel updater: app.updater
    readonly property AnalyzerModel analyzer: app.model

    width: parent?.width ?? 0
    bottomPadding: WindowFrames.areOurs ? topPadding : 0
    showsLetters: window.showsLetters

    /// Shortcuts act only while the main window has the keyboard focus. Newer versions of Qt (6.8) deliver them from its
    /// secondary windows too, where Ctrl+Q would end the program.
    function inWindow(keys: string): string {
        return Window.activeFocusItem ? keys : "";
    }
    /// The first call begins to pick runs, the second compares those picked.
    function compare(): void {
        if (analyzer.compareMode)
            analyzer.beginComparison();
        else
            analyzer.toggleCompareMode();
    }

    Connections {
        target: commands.window

        function onMenuWanted(): void {
            commands.openFirst();
        }
    }
    CommandMenu {
        title: qsTr("&Tarnwick")
        commands: [
            Command {
                text: qsTr("About Ondel Tarnwick")
                onTriggered: commands.window.aboutWanted()
            },
            Command {
                text: qsTr("Check for Updates…")
                enabled: commands.updater.canCheckForUpdates
                onTriggered: commands.updater.checkForUpdates()
            },
            Command {
                text: qsTr("Settings…")
                keys: "Ctrl+,"
                shortcut: commands.inWindow(keys)
                beginsGroup: true
                onTriggered: commands.window.settingsWanted()
            },
            Command {
                text: qsTr("Quit")
                keys: "Ctrl+Q"
                shortcut: commands.inWindow(keys)
                beginsGroup: true
                onTriggered: commands.app.terminate()
            }
        ]
    }
    CommandMenu {
        title: qsTr("&File")
        commands: [
            Command {
                text: qsTr("Choose Folder…")
                keys: "Ctrl+O"
                shortcut: commands.inWindow(keys)
                enabled: !commands.analyzer.isBusy
                onTriggered: commands.analyzer.chooseFolder()
            },
            Command {
                text: qsTr("Open Run File…")
                keys: "Ctrl+Shift+O"
                shortcut: commands.inWindow(keys)
                onTriggered: commands.app.openRunFile()
            },
            Command {
                //: Menu entry: closes the window
                text: qsTr("Close")
                keys: "Ctrl+W"
                shortcut: commands.inWindow(keys)
                beginsGroup: true
                enabled: !commands.app.showReport
                onTriggered: commands.app.terminate()
            }
        ]
    }
    CommandMenu {
        //: Title of a menu: a run of the benchmark
        title: qsTr("&Run")
        commands: [
            Command {
                text: qsTr("Run Benchmark")
                keys: "Ctrl+Return" // the run button's own
                enabled: commands.analyzer.canRun
                onTriggered: commands.window.run()
            },
            Command {
                text: qsTr("Stop")
                keys: "Ctrl+." // Escape too, where nothing else has a use for it
                shortcut: commands.inWindow(keys)
                enabled: commands.analyzer.isBusy
                onTriggered: commands.analyzer.cancel()
            },
            Command {
                text: qsTr("Check Capacity…")
                beginsGroup: true
                enabled: commands.analyzer.targetFolder.length > 0 && !commands.analyzer.isRunning
                onTriggered: commands.analyzer.showsCheck = true
            },
            Command {
                //: Menu entry: begins to choose runs
                text: qsTr("Compare")
                beginsGroup: true
                enabled: commands.analyzer.compareMode ? commands.analyzer.compareSelectionCount >= 2
                                                       : commands.analyzer.canCompare
                onTriggered: commands.compare()
            },
            Command {
                text: qsTr("Undo Delete")
                keys: "Ctrl+Z"
                shortcut: commands.inWindow(keys)
                enabled: commands.analyzer.undoableRuns > 0
                onTriggered: commands.analyzer.undoDeletion()
            }
        ]
    }
    HistoryCommands {
        analyzer: commands.analyzer
    }
    CommandMenu {
        title: qsTr("&Help")
        commands: [
            Command {
                text: qsTr("Tarnwick Help")
                keys: "F1"
                shortcut: commands.inWindow(keys)
                onTriggered: AppSupport.openPage(commands.app.website)
            },
            Command {
                text: qsTr("Report a Problem…")
                beginsGroup: true
                onTriggered: commands.app.showReport = true
            },
            Command {
                text: qsTr("Support Tarnwick…")
                onTriggered: AppSupport.nudges.openSupportPage(false)
            }
        ]
    }
}
