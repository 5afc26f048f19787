pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// What a run's evidence says about its figures, at the foot of its card.
Column {
    id: section

    required property runRecord run

    Separator {
        width: section.width
        color: PaletteKey.palette.borderSoft
    }
    CardFoot {
        width: section.width
        implicitHeight: list.height + 26
        corner: ViewMetrics.cardCorner

        Column {
            id: list

            x: ViewMetrics.figurePadding
            y: 13
            width: parent.width - 2 * x
            spacing: 8

            Item {
                width: parent.width
                height: Math.max(title.height, link.implicitContentHeight)

                PlainText {
                    id: title

                    anchors.left: parent.left
                    anchors.verticalCenter: parent.verticalCenter
                    text: qsTr("About these figures")
                    font: Typeface.text(12, Font.DemiBold)
                    color: section.PaletteKey.palette.heading
                    Accessible.role: Accessible.Heading
                }
                TextButton {
                    id: link

                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    visible: FiguresPage.isInstalled
                    label: qsTr("What these remarks mean")
                    textColor: section.PaletteKey.palette.link
                    onClicked: FiguresPage.open()
                }
            }
            Repeater {
                model: Runs.remarks(section.run)

                RemarkRow {
                    required property remarkItem modelData

                    width: list.width
                    remark: modelData
                }
            }
        }
    }
}
