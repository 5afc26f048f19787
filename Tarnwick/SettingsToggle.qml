pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A switch with a line that says what it does.
PlainButton {
    id: control

    required property bool on
    required property string explanation

    signal wanted(on: bool)

    Layout.fillWidth: true
    corner: 7
    detail: explanation
    checkable: true
    checked: on
    onCheckedChanged: if (checked !== on) wanted(checked)
    onOnChanged: checked = on

    contentItem: RowLayout {
        spacing: 16

        ColumnLayout {
            spacing: 2

            PlainText {
                Layout.fillWidth: true
                text: control.label
                font: Typeface.text(13, Font.Medium)
                color: PaletteKey.palette.text
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            PlainText {
                Layout.fillWidth: true
                text: control.explanation
                font: Typeface.text(12)
                color: PaletteKey.palette.text2
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
        PaletteSwitch {
            on: control.on
        }
    }
}
