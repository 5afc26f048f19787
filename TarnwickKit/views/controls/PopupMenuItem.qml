pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import OndelControls
import TarnwickKit.views

T.MenuItem {
    id: item

    property string symbol: ""
    /// The mark of the choice that holds, in a menu that offers one of several.
    property bool chosen: false
    property bool isHeading: false
    property bool destructive: false
    /// The keys that do the same.
    property string keys: ""

    implicitWidth: row.implicitWidth + leftPadding + rightPadding
    implicitHeight: Math.max(isHeading ? 24 : 28, row.implicitHeight + topPadding + bottomPadding)
    horizontalPadding: 10
    verticalPadding: isHeading ? 3 : 5
    hoverEnabled: true
    enabled: !isHeading
    opacity: enabled || isHeading ? 1 : 0.45

    Accessible.role: isHeading ? Accessible.Heading : Accessible.MenuItem
    Accessible.name: text
    // The toolkit has no word for a disabled item on the accessibility tree.
    Accessible.description: enabled || isHeading ? keys : qsTr("Not available now")
    Accessible.checked: chosen
    Accessible.onPressAction: if (item.enabled) item.clicked()

    contentItem: RowLayout {
        id: row

        spacing: 9

        Symbol {
            Layout.preferredWidth: 16
            Layout.alignment: Qt.AlignVCenter
            visible: name.length > 0 || item.checkable
            name: item.symbol.length > 0 ? item.symbol : item.chosen ? "checkmark" : ""
            size: 11
            color: PaletteKey.palette.text2
        }
        PlainText {
            Layout.fillWidth: true
            text: item.text
            font: item.isHeading ? Typeface.text(11, Font.DemiBold) : Typeface.text(13)
            color: item.isHeading ? PaletteKey.palette.text3
                                  : item.destructive ? PaletteKey.palette.coralink : PaletteKey.palette.text
            elide: Text.ElideRight
            maximumLineCount: 1
            Accessible.ignored: true
        }
        PlainText {
            Layout.leftMargin: 20
            visible: item.keys.length > 0
            text: item.keys
            font: Typeface.text(12)
            color: PaletteKey.palette.text3
            Accessible.ignored: true
        }
    }
    background: Card {
        radius: 6
        color: item.highlighted ? PaletteKey.palette.tealSoft : "transparent"
    }
}
