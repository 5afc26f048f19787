pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// What can be chosen before a capacity check, and what will happen then.
ColumnLayout {
    id: choices

    required property LiveCheck check
    property bool canStart: false

    spacing: 12

    BodyText {
        Layout.fillWidth: true
        text: qsTr("Is the volume as large as it says, and does it keep what it is given?")
        font: Typeface.display(15)
        color: PaletteKey.palette.text
    }
    Column {
        Layout.fillWidth: true
        Layout.maximumWidth: Metrics.scaled(420)
        Layout.leftMargin: -ViewMetrics.sidebarInset
        spacing: 9

        SettingMenu {
            width: parent.width
            label: qsTr("Space to check")
            options: choices.check.sizes
            current: choices.check.sizeIndex
            onChosen: index => choices.check.sizeIndex = index
        }
        SettingMenu {
            width: parent.width
            label: qsTr("Read a second time")
            options: choices.check.pauses
            current: choices.check.pauseIndex
            onChosen: index => choices.check.pauseIndex = index
        }
        ToggleSwitch {
            width: parent.width
            leftPadding: ViewMetrics.sidebarInset
            rightPadding: ViewMetrics.sidebarInset
            topPadding: 2
            bottomPadding: Math.max(0, Metrics.leastTarget - implicitContentHeight - topPadding)
            textColor: PaletteKey.palette.text2
            label: qsTr("Quick: samples only")
            on: choices.check.quick
            onWanted: on => choices.check.quick = on
        }
    }
    BodyText {
        Layout.fillWidth: true
        text: choices.check.announcement
        font: Typeface.text(13)
        color: PaletteKey.palette.text2
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    PlainButton {
        id: starter

        label: qsTr("Start Check")
        corner: 10
        leftPadding: 18
        rightPadding: 18
        topPadding: 9
        bottomPadding: 9
        enabled: choices.canStart
        onClicked: choices.check.start()

        background: Card {
            radius: starter.corner
            color: starter.lit(PaletteKey.palette.accent, PaletteKey.palette.onAccent)
        }
        contentItem: PlainText {
            text: starter.label
            font: Typeface.display(14)
            color: PaletteKey.palette.onAccent
            Accessible.ignored: true
        }
    }
}
