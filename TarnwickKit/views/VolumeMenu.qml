import QtQuick
import TarnwickKit.views

/// Where to measure.
PopupMenu {
    id: menu

    required property AnalyzerModel analyzer

    PopupMenuItem {
        text: qsTr("Choose Folder…")
        symbol: "folder"
        onTriggered: chooser.open(menu.parent.Window.window, menu.analyzer.targetFolder)
    }

    readonly property FolderChooser chooser: FolderChooser {
        id: chooser

        onChosen: folder => menu.analyzer.select(folder)
    }
}
