pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// What can be done with the run of the row or the pane that this covers: by a context menu, and by keys while the
/// focus is in it.
Item {
    id: actions

    required property AnalyzerModel analyzer
    required property runRecord run
    required property runFacts facts

    readonly property comparedRuns alone: Runs.alone(run)
    readonly property RunExports exports: RunExports {
        onTold: sentence => actions.tell(sentence)
    }

    signal rename
    signal share
    signal remove

    function take(event: KeyEvent): void {
        if (event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier))
            showMenu(LayoutMirroring.enabled ? width - 18 : 18, 30);
        else if (event.key === Qt.Key_Delete)
            remove();
        else if (event.key === Qt.Key_F2)
            rename();
        else if (event.matches(StandardKey.Copy))
            copy();
        else
            return;
        event.accepted = true;
    }
    function showMenu(x: real, y: real): void {
        menu.active = true;
        const choices = menu.object as RunMenu;
        choices.hasLast = analyzer.hasLastOfVolume(facts.id);
        choices.openAt(x, y);
    }
    function copy(): void {
        tell(Runs.copyFigures(run));
    }
    function tell(sentence: string): void {
        note.active = false; // a new note is shown for its whole time
        note.sentence = sentence;
        note.active = true;
    }

    anchors.fill: parent

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: point => actions.showMenu(point.position.x, point.position.y)
    }
    OnDemand {
        id: menu

        RunMenu {
            parent: actions
            hasLast: false
            onRename: actions.rename()
            onShare: actions.share()
            onCopy: actions.copy()
            onCopyText: actions.exports.copyText(actions.alone)
            onCopyTable: actions.exports.copyMarkdown(actions.alone)
            onSave: actions.exports.saveRuns(actions.alone, actions)
            onSaveCsv: actions.exports.saveCsv(actions.alone, actions)
            onCompare: actions.analyzer.compareWithLast(actions.facts.id)
            onRemove: actions.remove()
        }
    }
    OnDemand {
        id: note

        property string sentence

        Note {
            owner: actions
            text: note.sentence
        }
    }
}
