pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The card of a run: a header row, a separator, and the content.
Card {
    id: frame

    property alias header: head.data
    readonly property bool isNarrow: width > 0 && width < ViewMetrics.narrowCard
    /// What has no room there in a narrow card.
    property alias secondHeader: second.data
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
            Layout.bottomMargin: second.visible ? 8 : frame.headerPadding
            spacing: 12
        }
        RowLayout {
            id: second

            Layout.leftMargin: ViewMetrics.cardPadding
            Layout.rightMargin: ViewMetrics.cardPadding
            Layout.bottomMargin: frame.headerPadding
            visible: frame.isNarrow && children.length > 0
            spacing: head.spacing
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
