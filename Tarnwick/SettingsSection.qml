pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A group of settings: a title, and rows on a card.
ColumnLayout {
    id: section

    required property string title
    default property alias rows: column.data

    spacing: 8

    HeadingText {
        Layout.leftMargin: 4
        text: section.title
    }
    Card {
        Layout.fillWidth: true
        implicitHeight: column.implicitHeight + 28
        radius: 12
        color: PaletteKey.palette.panel
        outline: PaletteKey.palette.border

        ColumnLayout {
            id: column

            anchors.fill: parent
            anchors.margins: 14
            spacing: 12
        }
    }
}
