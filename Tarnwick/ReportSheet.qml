pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelAppSupport.views
import OndelControls
import TarnwickKit.views

/// The form for problem reports, over the whole window.
T.Popup {
    id: sheet

    anchors.centerIn: parent
    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    visible: true
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape

    T.Overlay.modal: Rectangle {
        color: Qt.rgba(0, 0, 0, 0.32)
    }
    background: Card {
        radius: Metrics.sheetCorner
        color: PaletteKey.palette.bg
        outline: PaletteKey.palette.border
        shadowColor: PaletteKey.palette.shadow
        shadowRadius: Metrics.sheetShadow
        shadowOffset: Metrics.sheetShadowOffset
    }
    contentItem: ReportProblemView {
        focus: true
        onDismissed: sheet.close()
    }
}
