pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A labelled on/off switch, with an optional explanation below the label.
ToggleButton {
    id: control

    property string explanation: ""
    property color textColor: PaletteKey.palette.text

    corner: 7
    detail: explanation

    contentItem: RowLayout {
        spacing: 16

        ColumnLayout {
            spacing: 2

            PlainText {
                Layout.fillWidth: true
                text: control.label
                font: Typeface.text(13, Font.Medium)
                color: control.textColor
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            Caption {
                Layout.fillWidth: true
                visible: text.length > 0
                text: control.explanation
                Accessible.ignored: true
            }
        }
        PaletteSwitch {
            on: control.on
            outline: control.hovered || (Appearance.contrast && !control.on) ? control.frameColor : "transparent"
        }
    }
}
