pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A labelled on/off switch.
PlainButton {
    id: control

    property bool on: false

    signal wanted(on: bool)

    corner: 7
    leftPadding: ViewMetrics.sidebarInset
    rightPadding: ViewMetrics.sidebarInset
    checkable: true
    checked: on
    onCheckedChanged: if (checked !== on) wanted(checked)

    contentItem: RowLayout {
        spacing: 8

        PlainText {
            Layout.fillWidth: true
            text: control.label
            font: Typeface.text(13, Font.Medium)
            color: PaletteKey.palette.text2
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        PaletteSwitch {
            on: control.on
        }
    }
}
