pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// A sheet in the middle of the window, which is dimmed and takes no input while the sheet is open. Escape closes it.
T.Popup {
    id: sheet

    property color fill: palette.window
    property color outline: palette.mid
    property color shadowColor: "transparent"

    anchors.centerIn: T.Overlay.overlay
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape

    T.Overlay.modal: Rectangle {
        color: Qt.rgba(0, 0, 0, Metrics.dimming)
    }
    background: Card {
        radius: Metrics.sheetCorner
        color: sheet.fill
        outline: sheet.outline
        shadowColor: sheet.shadowColor
        shadowRadius: Metrics.sheetShadow
        shadowOffset: Metrics.sheetShadowOffset
    }
}
