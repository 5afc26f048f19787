pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick

/// The measures that controls share. Units: logical pixels, milliseconds, parts of full opacity.
QtObject {
    /// The focus mark: its line, and how far outside of the control's edge it reaches.
    readonly property int focusLine: 2
    readonly property int focusGap: 3
    /// Above what a control holds.
    readonly property int focusLayer: 10

    /// Sizes of text in what follows the system's style: sheets, panels, menus.
    readonly property int textSize: 13
    readonly property int captionSize: 12
    readonly property int noteSize: 10
    readonly property int titleSize: 17

    readonly property int fieldWidth: 200
    readonly property int tipDelay: 700
    readonly property int tipWidth: 320
    /// How far tips and menus stay away from the window's edges, and from their control.
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
    /// Of words on a disabled control.
    readonly property real disabledTextOpacity: 0.45

    /// Depth of what floats above the window: tips, menus, sheets.
    readonly property int tipShadow: 9
    readonly property int tipShadowOffset: 4
    readonly property int menuShadow: 18
    readonly property int menuShadowOffset: 8
    readonly property real dimming: 0.32
    readonly property int sheetShadow: 22
    readonly property int sheetShadowOffset: 16
}
