pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// A box to tick, with its words beside it.
T.CheckBox {
    id: box

    implicitWidth: words.implicitWidth + leftPadding + rightPadding
    implicitHeight: Math.max(16, words.implicitHeight)
    leftPadding: 22
    Accessible.name: text

    indicator: Card {
        y: Math.round((box.height - height) / 2)
        width: 16
        height: 16
        radius: 4
        color: box.checked ? box.palette.highlight : box.palette.base
        outline: box.checked ? "transparent" : box.palette.mid

        Symbol {
            anchors.centerIn: parent
            visible: box.checked
            name: "checkmark"
            size: 10
            weight: Font.DemiBold
            color: box.palette.highlightedText
        }
    }
    contentItem: PlainText {
        id: words

        text: box.text
        font.pixelSize: 13
        color: box.palette.windowText
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    FocusMark {
        control: box
    }
}
