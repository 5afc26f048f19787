pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls
import TarnwickKit.views

/// The menu of targets: the mounted volumes, and any folder.
PopupMenu {
    id: menu

    required property PlainButton button
    required property AnalyzerModel analyzer
    required property TargetFacts target

    parent: button
    y: button.height + Metrics.menuGap
    leastWidth: button.width
    // Listed anew each time, since volumes come and go.
    onAboutToShow: volumes.model = target.mountedVolumes()

    PopupMenuItem {
        text: qsTr("Mounted volumes")
        isHeading: true
    }
    Repeater {
        id: volumes

        PopupMenuItem {
            required property volumeItem modelData

            text: modelData.label
            symbol: modelData.symbol
            onTriggered: menu.analyzer.selectVolume(modelData.url)
        }
    }
    T.MenuSeparator {
        verticalPadding: 5
        horizontalPadding: 10
        implicitHeight: implicitContentHeight + topPadding + bottomPadding
        contentItem: Separator {
            color: PaletteKey.palette.borderSoft
        }
    }
    PopupMenuItem {
        text: qsTr("Choose Folder…")
        symbol: "folder"
        onTriggered: menu.analyzer.chooseFolder()
    }
    PopupMenuItem {
        text: qsTr("Show in Folder")
        symbol: "square.and.arrow.up"
        enabled: menu.target.folder.length > 0
        onTriggered: menu.target.showFolder()
    }
    PopupMenuItem {
        text: qsTr("Check Capacity…")
        symbol: "checkmark.shield.fill"
        enabled: menu.target.folder.length > 0
        onTriggered: menu.analyzer.showsCheck = true
    }
}
