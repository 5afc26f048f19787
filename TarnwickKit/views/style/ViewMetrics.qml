pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick
import OndelControls

/// Shared measures of the window's views and of images. Those of controls are in OndelControls's Metrics.
/// Units: logical pixels.
QtObject {
    /// The distance between the main pane's edge and its cards, and between cards.
    readonly property int paneMargin: 20
    /// The same in a pane narrower than `smallPane`.
    readonly property int smallPaneMargin: 12
    readonly property int smallPane: Metrics.scaled(480)
    /// The greatest width of the main pane's cards.
    readonly property int greatestCard: 1640
    /// Cards and rows narrower than this take a second line for what no longer stands side by side.
    readonly property int narrowCard: Metrics.scaled(580)
    /// The same for the collapsed run, which has a badge beside its title.
    readonly property int narrowCollapsed: Metrics.scaled(640)

    readonly property int cardCorner: 15
    /// From a card's sides to its header and chart.
    readonly property int cardPadding: 18
    /// From a card's sides to its figures and foot.
    readonly property int figurePadding: 20
    readonly property int figureMargin: 17

    readonly property int alertWidth: Metrics.scaled(400)
    readonly property int sidebarWidth: 32 + Metrics.scaled(240)
    /// In a window narrower than this the sidebar is a drawer, in one narrower than `narrowToolbar` the toolbar has two lines.
    readonly property int drawerWidth: sidebarWidth + 548
    readonly property int narrowToolbar: Metrics.scaled(640)
    /// The least width for the target's folder in the toolbar.
    readonly property int folderRoom: Metrics.scaled(140)
    /// Of the outline of a hovered row.
    readonly property real hoverOpacity: 0.6

    readonly property int badgeSide: 30
    /// The width of a rate in a row of runs.
    readonly property int statWidth: Metrics.scaled(104)
    readonly property int chartHeight: 200
    /// The side of a mark at a figure, and the width of the word for a remark's weight.
    readonly property int markSide: 14
    readonly property int weightWidth: Metrics.scaled(52)
    /// The width of a comparison's full bar.
    readonly property int trackWidth: 460
    /// The widths of what stands on a bar's two sides.
    readonly property int metricLabelWidth: Metrics.scaled(96)
    readonly property int barFigureWidth: Metrics.scaled(60)
    readonly property int differenceWidth: Metrics.scaled(72)

    readonly property int sidebarMargin: 16
    /// The least height above what stays at the sidebar's foot.
    readonly property int leastAboveFoot: 260
    /// The indent of the sidebar's headings and settings.
    readonly property int sidebarInset: 4
}
