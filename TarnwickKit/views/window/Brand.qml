pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The product's icon, name and web address.
RowLayout {
    id: brand

    required property string link
    property real nameSize: 15

    spacing: 14

    TarnwickIcon {
        implicitWidth: 36
        implicitHeight: 36
    }
    Column {
        spacing: 1

        PlainText {
            text: "Ondel Tarnwick"
            font: Typeface.display(brand.nameSize)
            color: PaletteKey.palette.text
        }
        PlainText {
            text: brand.link
            font: Typeface.mono(11.5)
            color: PaletteKey.palette.teal
        }
    }
}
