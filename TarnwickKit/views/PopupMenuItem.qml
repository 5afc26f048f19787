import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import TarnwickKit.views

T.MenuItem {
    id: item

    property string symbol: ""
    property bool chosen: false

    implicitWidth: row.implicitWidth + leftPadding + rightPadding
    implicitHeight: Math.max(28, row.implicitHeight + topPadding + bottomPadding)
    horizontalPadding: 10
    verticalPadding: 5
    hoverEnabled: true

    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.checkable: checkable
    Accessible.checked: chosen
    Accessible.onPressAction: if (item.enabled) item.clicked()

    contentItem: RowLayout {
        id: row

        spacing: 9

        Symbol {
            Layout.preferredWidth: 16
            Layout.alignment: Qt.AlignVCenter
            visible: item.symbol.length > 0 || item.checkable
            name: item.symbol.length > 0 ? item.symbol : item.chosen ? "checkmark" : ""
            size: 11
            color: PaletteKey.palette.text2
        }
        Text {
            Layout.fillWidth: true
            text: item.text
            font: Typeface.text(13)
            color: PaletteKey.palette.text
            opacity: item.enabled ? 1 : 0.5
            elide: Text.ElideRight
            maximumLineCount: 1
            Accessible.ignored: true
        }
    }
    background: Rectangle {
        radius: 6
        color: item.highlighted ? PaletteKey.palette.tealSoft : "transparent"
    }
}
