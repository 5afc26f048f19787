pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The foot of a report card: the product, and the address to get it from.
CardFoot {
    id: footer

    /// The web address without its scheme.
    required property string link

    implicitHeight: row.implicitHeight + 32

    RowLayout {
        id: row

        x: ViewMetrics.figurePadding
        y: 16
        width: footer.width - 2 * x
        spacing: 14

        Brand {
            link: footer.link
        }
        Item {
            Layout.fillWidth: true
        }
        Column {
            spacing: 2

            PlainText {
                anchors.right: parent.right
                text: qsTr("Disk speed & volume analyzer")
                font: Typeface.text(11.5)
                color: PaletteKey.palette.text2
            }
            PlainText {
                anchors.right: parent.right
                text: qsTr("Scan to benchmark your own")
                font: Typeface.mono(10.5)
                color: PaletteKey.palette.text3
            }
        }
        QRTile {
            link: footer.link
        }
    }
}
