pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick

/// Shared measures of the window's views and of images. Those of controls are in OndelControls's Metrics.
/// Units: logical pixels.
QtObject {
    /// The distance between the main pane's edge and its cards, and between cards.
    readonly property int paneMargin: 20

    readonly property int cardCorner: 15
    /// From a card's sides to its header and chart.
    readonly property int cardPadding: 18
    /// From a card's sides to its figures and foot.
    readonly property int figurePadding: 20
    readonly property int figureMargin: 17

    readonly property int alertWidth: 400
    readonly property int badgeSide: 30
    /// The width of a rate in a row of runs.
    readonly property int statWidth: 104
    readonly property int chartHeight: 200
    /// The width of a comparison's full bar.
    readonly property int trackWidth: 460

    /// The indent of the sidebar's headings and settings.
    readonly property int sidebarInset: 4
}
