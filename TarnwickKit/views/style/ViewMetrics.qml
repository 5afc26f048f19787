pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick

/// The measures that the window's views and the images to share have in common; those of controls are OndelControls's Metrics.
/// Units: logical pixels.
QtObject {
    /// Between the main pane's edge and its cards, and between these.
    readonly property int paneMargin: 20

    readonly property int cardCorner: 15
    /// From a card's sides to its header and its chart.
    readonly property int cardPadding: 18
    /// From a card's sides to its figures and its foot.
    readonly property int figurePadding: 20
    readonly property int figureMargin: 17

    readonly property int alertWidth: 400
    readonly property int badgeSide: 30
    /// A rate in a row of runs.
    readonly property int statWidth: 104
    readonly property int chartHeight: 200
    /// A full bar of a comparison.
    readonly property int trackWidth: 460

    /// From the sidebar's content to what stands in line with its headings.
    readonly property int sidebarInset: 4
}
