pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A setting with its value, and the menu that changes it.
RowLayout {
    id: setting

    required property string label
    /// The labels, a QStringList.
    required property var options
    required property int current
    property string value: options[current] ?? ""

    signal chosen(index: int)

    spacing: 8

    PlainText {
        Layout.fillWidth: true
        Layout.leftMargin: 4
        text: setting.label
        font: Typeface.text(13, Font.Medium)
        color: PaletteKey.palette.text2
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    PlainButton {
        id: button

        Layout.rightMargin: 4
        label: setting.label
        corner: 7
        leftPadding: 9
        rightPadding: 9
        topPadding: 5
        bottomPadding: 5
        detail: setting.value
        onClicked: show()
        Keys.onDownPressed: show()

        function show(): void {
            if (!menu.item) // not made before somebody looks
                menu.setSource("SettingChoices.qml", {button: button, setting: setting});
            const choices = menu.item as PopupMenu;
            (choices.contentItem as ListView).forceLayout();
            choices.open();
        }

        background: Card {
            radius: 7
            color: PaletteKey.palette.panel
            outline: PaletteKey.palette.border
        }
        contentItem: Row {
            spacing: 5

            PlainText {
                text: setting.value
                font: Typeface.mono(11.5)
                color: PaletteKey.palette.text
                Accessible.ignored: true
            }
            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "chevron.down"
                size: 8
                color: PaletteKey.palette.text3
            }
        }
        Loader {
            id: menu
        }
    }
}
