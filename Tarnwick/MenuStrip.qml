pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls
import TarnwickKit.views

/// The menu bar. F10 opens its first menu, Alt and a title's marked letter its menu; the arrow keys move to the others.
T.MenuBar {
    id: bar

    /// Underlines the letters that open menus together with Alt.
    property bool showsLetters: false

    /// Does nothing while a menu is open, as at the end of Alt and a letter.
    function openFirst(): void {
        for (let i = 0; i < count; ++i)
            if (menuAt(i).visible)
                return;
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

        readonly property int letter: text.indexOf("&")

        implicitWidth: words.implicitWidth
        implicitHeight: words.implicitHeight
        anchors.verticalCenter: parent?.verticalCenter // other scripts have higher lines

        // Qt gives each title the role of a menu bar. The text inside has the role of a menu item.
        Accessible.ignored: true

        contentItem: PlainText {
            id: words

            text: title.text.replace("&", "")
            leftPadding: 8
            rightPadding: 8
            topPadding: 4
            bottomPadding: 4
            font: Typeface.text(13)
            color: title.highlighted ? PaletteKey.palette.onAccent : PaletteKey.palette.text2
            Accessible.role: Accessible.MenuItem
            Accessible.onPressAction: title.triggered()

            OnDemand {
                active: bar.showsLetters && title.letter >= 0

                Rectangle {
                    x: words.leftPadding + before.advanceWidth
                    y: words.baselineOffset + 2
                    width: marked.advanceWidth
                    height: 1
                    color: words.color

                    TextMetrics {
                        id: before

                        font: words.font
                        text: words.text.slice(0, title.letter)
                    }
                    TextMetrics {
                        id: marked

                        font: words.font
                        text: words.text.charAt(title.letter)
                    }
                }
            }
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
