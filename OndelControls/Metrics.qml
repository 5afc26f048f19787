pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick

/// Shared measures of controls. Units: logical pixels, milliseconds, opacity from 0 to 1.
QtObject {
    /// How much larger than drawn the desktop wants text. A window sets it; images that are shared stay at 1.
    property real textScale: 1

    /// A text's size, or the measure of something that has to hold text.
    function scaled(size: real): int {
        return Math.round(size * textScale);
    }

    /// The focus mark: its line width, and its distance from the control's edge.
    readonly property int focusLine: 2
    readonly property int focusGap: 3
    /// The focus mark's z order, above the control's content.
    readonly property int focusLayer: 10

    /// Text sizes of sheets, panels and menus.
    readonly property int textSize: scaled(13)
    readonly property int captionSize: scaled(12)
    readonly property int noteSize: scaled(10)
    readonly property int titleSize: scaled(17)

    /// Of the area to press of a control.
    readonly property int leastTarget: 24
    readonly property int fieldWidth: scaled(200)
    /// From a check box's left edge to its label.
    readonly property int checkIndent: 22
    /// How far an arrow key scrolls a page, and a text.
    readonly property int scrollStep: 40
    readonly property int textScrollStep: 20
    readonly property int switchTime: 120
    readonly property int foldTime: 150

    readonly property int tipDelay: 700
    readonly property int tipWidth: scaled(320)
    /// Distances of tips and menus: to the window's edges (margin), to their control (gap).
    readonly property int tipMargin: 6
    readonly property int tipGap: 6
    readonly property int menuMargin: 8
    readonly property int menuGap: 4
    readonly property int menuPadding: 5

    readonly property int tipCorner: 6
    readonly property int fieldCorner: 6
    readonly property int buttonCorner: 8
    readonly property int menuCorner: 10
    readonly property int sheetCorner: 14

    readonly property real pressedOpacity: 0.75
    readonly property real disabledOpacity: 0.5
    /// Of a disabled control's text.
    readonly property real disabledTextOpacity: 0.45

    /// Shadows of tips, menus and sheets.
    readonly property int tipShadow: 9
    readonly property int tipShadowOffset: 4
    readonly property int menuShadow: 18
    readonly property int menuShadowOffset: 8
    readonly property int sheetMargin: 20
    /// Of the layer between a sheet and the window beneath it.
    readonly property real dimming: 0.32
    readonly property int sheetShadow: 22
    readonly property int sheetShadowOffset: 16
}
