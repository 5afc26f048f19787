pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// The banner's menu of one entry.
T.AbstractButton {
    id: button

    required property string entry

    signal chosen

    implicitWidth: 22
    implicitHeight: 22
    opacity: pressed ? 0.75 : 1
    activeFocusOnTab: true
    focusPolicy: Qt.TabFocus
    onClicked: menu.popup(button, 0, fitsBelow() ? height + 4 : -menu.implicitHeight - 4)

    Accessible.role: Accessible.ButtonMenu
    Accessible.name: qsTr("More")
    Accessible.focusable: true
    Accessible.onPressAction: button.clicked()
    Keys.onReturnPressed: button.clicked()
    Keys.onEnterPressed: button.clicked()
    Keys.onDownPressed: button.clicked()

    function fitsBelow(): bool {
        return mapToItem(null, 0, height + 4 + menu.implicitHeight).y + menu.margins <= Window.height;
    }

    contentItem: Symbol {
        name: "ellipsis"
        size: 13
        color: "white"
    }
    HintTip {
        text: qsTr("More")
        visible: button.hovered && !menu.visible
    }
    FocusMark {
        control: button
        outline: "white"
    }
    T.Menu {
        id: menu

        margins: 8
        padding: 5
        implicitWidth: item.implicitWidth + leftPadding + rightPadding
        implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
        onOpened: currentIndex = 0

        contentItem: ListView {
            implicitHeight: contentHeight
            model: menu.contentModel
            currentIndex: menu.currentIndex
            interactive: false
        }
        background: Card {
            radius: 8
            color: menu.palette.window
            outline: menu.palette.mid
        }

        T.MenuItem {
            id: item

            text: button.entry
            implicitWidth: words.implicitWidth + 20
            implicitHeight: 26
            hoverEnabled: true
            Accessible.name: text
            Accessible.onPressAction: item.triggered()
            onTriggered: button.chosen()

            contentItem: PlainText {
                id: words

                leftPadding: 10
                text: item.text
                font.pixelSize: 13
                color: item.highlighted ? item.palette.highlightedText : item.palette.windowText
                verticalAlignment: Text.AlignVCenter
                Accessible.ignored: true
            }
            background: Card {
                radius: 5
                color: item.highlighted ? item.palette.highlight : "transparent"
            }
        }
    }
}
