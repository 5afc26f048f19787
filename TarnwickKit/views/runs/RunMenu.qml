pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// The context menu of a run.
PopupMenu {
    id: menu

    /// There is an earlier run of the same volume.
    required property bool hasLast

    signal rename
    signal share
    signal copy
    signal copyText
    signal copyTable
    signal save
    signal saveCsv
    signal compare
    signal remove

    PopupMenuItem {
        text: qsTr("Rename Report…")
        keys: "F2"
        onTriggered: menu.rename()
    }
    PopupMenuItem {
        text: qsTr("Share Report Image…")
        onTriggered: menu.share()
    }
    PopupMenuItem {
        text: qsTr("Copy Figures")
        keys: "Ctrl+C"
        onTriggered: menu.copy()
    }
    PopupMenuItem {
        text: qsTr("Copy as Text")
        onTriggered: menu.copyText()
    }
    PopupMenuItem {
        text: qsTr("Copy as Markdown Table")
        onTriggered: menu.copyTable()
    }
    PopupMenuItem {
        text: qsTr("Save Run File…")
        onTriggered: menu.save()
    }
    PopupMenuItem {
        text: qsTr("Export CSV…")
        onTriggered: menu.saveCsv()
    }
    PopupMenuItem {
        text: qsTr("Compare with Last Run of This Volume")
        enabled: menu.hasLast
        onTriggered: menu.compare()
    }
    PopupMenuItem {
        text: qsTr("Delete Run")
        keys: "Del"
        destructive: true
        onTriggered: menu.remove()
    }
}
