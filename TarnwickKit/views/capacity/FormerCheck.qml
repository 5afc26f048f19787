pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A row of the former checks.
PlainButton {
    id: row

    required property checkItem modelData
    required property int index

    label: qsTr("%1 · %2").arg(modelData.title).arg(modelData.stamp)
    detail: modelData.sentence
    leftPadding: ViewMetrics.cardPadding
    rightPadding: ViewMetrics.cardPadding
    topPadding: 7
    bottomPadding: 7

    background: Rectangle {
        color: row.hovered ? PaletteKey.palette.panel2 : "transparent"
    }
    contentItem: RowLayout {
        spacing: 10

        VerdictSign {
            Layout.alignment: Qt.AlignTop
            Layout.topMargin: 2
            verdict: row.modelData.verdict
            size: 14
        }
        ColumnLayout {
            spacing: 1

            PlainText {
                Layout.fillWidth: true
                text: row.modelData.sentence
                horizontalAlignment: Text.AlignLeft
                font: Typeface.text(13)
                color: PaletteKey.palette.text
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            PlainText {
                Layout.fillWidth: true
                text: row.label
                horizontalAlignment: Text.AlignLeft
                font: Typeface.mono(11)
                color: PaletteKey.palette.text2
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }
    }
}
