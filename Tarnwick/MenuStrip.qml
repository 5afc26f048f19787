pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls
import TarnwickKit.views

/// The menu bar. F10 opens its first menu; the arrow keys move to the others.
T.MenuBar {
    id: bar

    function openFirst(): void {
        (itemAt(0) as T.MenuBarItem).triggered();
    }

    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    leftPadding: 10
    rightPadding: 10
    topPadding: 4
    spacing: 2

    Accessible.role: Accessible.MenuBar
    Accessible.name: qsTr("Menu bar")

    delegate: T.MenuBarItem {
        id: title

        implicitWidth: words.implicitWidth + leftPadding + rightPadding
        implicitHeight: words.implicitHeight + topPadding + bottomPadding
        horizontalPadding: 8
        verticalPadding: 4

        // Qt gives each title the role of a menu bar. The text inside has the role of a menu item.
        Accessible.ignored: true

        contentItem: PlainText {
            id: words

            text: title.text
            font: Typeface.text(13)
            color: title.highlighted ? PaletteKey.palette.onAccent : PaletteKey.palette.text2
            Accessible.role: Accessible.MenuItem
            Accessible.onPressAction: title.triggered()
        }
        background: Card {
            radius: 6
            color: title.highlighted ? PaletteKey.palette.accent : "transparent"
        }
    }
    contentItem: Row {
        spacing: bar.spacing

        Repeater {
            model: bar.contentModel
        }
    }
    background: Rectangle {
        color: PaletteKey.palette.panel2
    }

    Shortcut {
        sequences: ["F10"]
        onActivated: bar.openFirst()
    }
}
