pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The menu of actions with an image, and with the runs that it shows.
PopupMenu {
    id: picker

    required property PlainButton button
    required property SharedImage image
    required property RunExports exports
    required property comparedRuns runs

    parent: button
    x: button.mirrored ? 0 : button.width - width
    y: button.height + Metrics.menuGap

    PopupMenuItem {
        text: qsTr("Copy Image")
        onTriggered: picker.image.copy()
    }
    PopupMenuItem {
        text: qsTr("Save As…")
        onTriggered: picker.image.saveAs(picker.button)
    }
    PopupMenuItem {
        text: qsTr("Show in Folder")
        onTriggered: picker.image.showInFolder()
    }
    PopupMenuItem {
        text: qsTr("Send by Email…")
        onTriggered: picker.image.sendByEmail()
    }
    PopupMenuItem {
        text: qsTr("Copy as Text")
        onTriggered: picker.exports.copyText(picker.runs)
    }
    PopupMenuItem {
        text: qsTr("Copy as Markdown Table")
        onTriggered: picker.exports.copyMarkdown(picker.runs)
    }
    PopupMenuItem {
        text: picker.runs.count === 1 ? qsTr("Save Run File…") : qsTr("Save Runs…")
        onTriggered: picker.exports.saveRuns(picker.runs, picker.button)
    }
    PopupMenuItem {
        text: qsTr("Export CSV…")
        onTriggered: picker.exports.saveCsv(picker.runs, picker.button)
    }
}
