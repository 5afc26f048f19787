pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import OndelControls

/// An entry or a heading of a menu.
T.MenuItem {
    id: item

    property string symbol: ""
    /// Shows the mark of the current choice, in a menu that offers one of several.
    property bool chosen: false
    property bool isHeading: false
    /// The keyboard shortcut to show.
    property string keys: ""
    readonly property string keyNames: keys === "" ? "" : ViewMath.keyName(keys)

    property real leastHeight: 26
    property real corner: 5
    property color ink: highlighted ? palette.highlightedText : palette.windowText
    property color symbolColor: ink
    property color keysColor: ink
    property color highlight: palette.highlight
    /// The same as in plain texts; a popup does not inherit it from the window.
    property font textFont: Qt.font({
        family: Application.font.family,
        pixelSize: Metrics.textSize,
        hintingPreference: Font.PreferNoHinting
    })
    property font keysFont: textFont

    implicitWidth: row.implicitWidth + leftPadding + rightPadding
    implicitHeight: Math.max(leastHeight, row.implicitHeight + topPadding + bottomPadding)
    horizontalPadding: 10
    verticalPadding: isHeading ? 3 : 5
    hoverEnabled: true
    enabled: !isHeading
    // The toolkit reports this to assistive technology, and changes it with every press.
    checked: chosen
    onCheckedChanged: if (checked !== chosen) checked = Qt.binding(() => item.chosen)
    opacity: enabled || isHeading ? 1 : Metrics.disabledTextOpacity

    Accessible.role: isHeading ? Accessible.Heading : Accessible.MenuItem
    Accessible.name: text
    // Qt does not report the disabled state to assistive technology.
    Accessible.description: enabled || isHeading ? keyNames : qsTr("Not available now")
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
            text: item.keyNames
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
