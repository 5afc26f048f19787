pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import OndelControls
import TarnwickKit.views

/// A setting with its value, and the menu that changes it.
RowLayout {
    id: setting

    required property string label
    required property list<string> options
    required property int current
    property string value: options[current] ?? ""
    property real widestValue: Infinity

    signal chosen(index: int)

    spacing: 8

    PlainText {
        Layout.fillWidth: true
        Layout.leftMargin: ViewMetrics.sidebarInset
        text: setting.label
        font: Typeface.text(13, Font.Medium)
        color: PaletteKey.palette.text2
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    PlainButton {
        id: button

        Layout.rightMargin: ViewMetrics.sidebarInset
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
            menu.active = true;
            (menu.object as T.Popup).open();
        }

        background: Card {
            radius: button.corner
            color: PaletteKey.palette.panel
            outline: button.frameColor
        }
        contentItem: Row {
            spacing: 5

            PlainText {
                width: Math.min(implicitWidth, setting.widestValue)
                text: setting.value
                elide: Text.ElideMiddle
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
        OnDemand {
            id: menu

            file: "SettingChoices.qml"
            given: ({
                button: button,
                setting: setting
            })
        }
    }
}
