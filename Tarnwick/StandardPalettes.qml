pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// The palettes for windows. A window copies the palette it is given, so each appearance has an object of its own.
QtObject {
    readonly property Palette light: StandardPalette {
        colors: Appearance.lightPalette
    }
    readonly property Palette dark: StandardPalette {
        colors: Appearance.darkPalette
    }
    readonly property Palette current: Appearance.dark ? dark : light
}
