pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The card of a run: a header row, a separator, and the content.
Card {
    id: frame

    property alias header: head.data
    property real headerPadding: 15
    default property alias content: column.data

    implicitHeight: column.implicitHeight
    radius: ViewMetrics.cardCorner
    color: PaletteKey.palette.panel
    outline: PaletteKey.palette.border
    shadowColor: PaletteKey.palette.shadow
    shadowRadius: Metrics.sheetShadow
    shadowOffset: Metrics.sheetShadowOffset

    ColumnLayout {
        id: column

        width: frame.width
        spacing: 0

        RowLayout {
            id: head

            Layout.fillWidth: true
            Layout.leftMargin: ViewMetrics.cardPadding
            Layout.rightMargin: ViewMetrics.cardPadding
            Layout.topMargin: frame.headerPadding
            Layout.bottomMargin: frame.headerPadding
            spacing: 12
        }
        Separator {
            Layout.fillWidth: true
            color: PaletteKey.palette.borderSoft
        }
    }
    // The outline, above content that reaches the card's edges.
    Card {
        z: 1
        width: frame.width
        height: frame.height
        radius: frame.radius
        outline: frame.outline
    }
}
