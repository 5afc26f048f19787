import QtQuick
import QtQuick.Layouts
import TarnwickKit.views

/// Whose card it is: the product's icon, name and web address.
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

        Text {
            text: "Ondel Tarnwick"
            font: Typeface.display(brand.nameSize)
            color: PaletteKey.palette.text
        }
        Text {
            text: brand.link
            textFormat: Text.PlainText
            font: Typeface.mono(11.5)
            color: PaletteKey.palette.teal
        }
    }
}
