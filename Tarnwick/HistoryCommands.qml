pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views
import Tarnwick

/// The menu of what can be done with the whole history.
CommandMenu {
    id: menu

    required property AnalyzerModel analyzer
    property bool hasRuns: false
    readonly property RunExports exports: RunExports {
        onTold: sentence => menu.tell(sentence)
    }
    property Note lastNote

    function tell(sentence: string): void {
        if (lastNote)
            lastNote.destroy();
        lastNote = note.createObject(parent, { owner: parent, text: sentence }) as Note;
    }

    title: qsTr("H&istory")
    onAboutToShow: hasRuns = Runs.history(analyzer).count > 0
    commands: [
        Command {
            text: qsTr("Copy as Text")
            enabled: menu.hasRuns
            onTriggered: menu.exports.copyText(Runs.history(menu.analyzer))
        },
        Command {
            text: qsTr("Copy as Markdown Table")
            enabled: menu.hasRuns
            onTriggered: menu.exports.copyMarkdown(Runs.history(menu.analyzer))
        },
        Command {
            text: qsTr("Save Runs…")
            enabled: menu.hasRuns
            beginsGroup: true
            onTriggered: menu.exports.saveRuns(Runs.history(menu.analyzer), menu.parent)
        },
        Command {
            text: qsTr("Export CSV…")
            enabled: menu.hasRuns
            onTriggered: menu.exports.saveCsv(Runs.history(menu.analyzer), menu.parent)
        }
    ]

    Component {
        id: note

        Note {}
    }
}
