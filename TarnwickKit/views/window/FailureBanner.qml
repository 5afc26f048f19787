pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

Card {
    id: banner

    required property string message
    /// A second line, in plainer words; "" without one.
    property string explanation: ""

    implicitHeight: row.implicitHeight + 28
    radius: 12
    color: Qt.alpha(PaletteKey.palette.amber, 0.12)
    Accessible.role: Accessible.AlertMessage
    Accessible.name: message
    Accessible.description: explanation

    RowLayout {
        id: row

        x: 14
        y: 14
        width: parent.width - 28
        spacing: 10

        Symbol {
            name: "exclamationmark.triangle.fill"
            size: 13
            color: PaletteKey.palette.amber
        }
        ColumnLayout {
            spacing: 4

            PlainText {
                Layout.fillWidth: true
                text: banner.message
                font: Typeface.text(13)
                color: PaletteKey.palette.text
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            PlainText {
                Layout.fillWidth: true
                visible: text.length > 0
                text: banner.explanation
                font: Typeface.text(13)
                color: PaletteKey.palette.text2
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
    }
}
