pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import OndelControls

/// A line of a menu.
T.MenuItem {
    id: item

    property string symbol: ""
    /// The mark of the choice that holds, in a menu that offers one of several.
    property bool chosen: false
    property bool isHeading: false
    /// The keys that do the same.
    property string keys: ""

    property real leastHeight: 26
    property real corner: 5
    property color ink: highlighted ? palette.highlightedText : palette.windowText
    property color symbolColor: ink
    property color keysColor: ink
    property color highlight: palette.highlight
    /// As plain texts have it: the toolkit gives popups another one.
    property font textFont: Qt.font({
        family: Application.font.family,
        pixelSize: 13,
        hintingPreference: Font.PreferNoHinting
    })
    property font keysFont: textFont

    implicitWidth: row.implicitWidth + leftPadding + rightPadding
    implicitHeight: Math.max(leastHeight, row.implicitHeight + topPadding + bottomPadding)
    horizontalPadding: 10
    verticalPadding: isHeading ? 3 : 5
    hoverEnabled: true
    enabled: !isHeading
    opacity: enabled || isHeading ? 1 : Metrics.disabledTextOpacity

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
            color: item.symbolColor
        }
        PlainText {
            Layout.fillWidth: true
            text: item.text
            font: item.textFont
            color: item.ink
            elide: Text.ElideRight
            maximumLineCount: 1
            Accessible.ignored: true
        }
        PlainText {
            Layout.leftMargin: 20
            visible: item.keys.length > 0
            text: item.keys
            font: item.keysFont
            color: item.keysColor
            Accessible.ignored: true
        }
    }
    background: Card {
        radius: item.corner
        color: item.highlighted ? item.highlight : "transparent"
    }
}
