pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// The palettes for windows. A window copies the palette it is given, so each appearance has an object of its own.
QtObject {
    readonly property Palette light: StandardPalette {
        colors: Appearance.paletteOf(false, false)
    }
    readonly property Palette dark: StandardPalette {
        colors: Appearance.paletteOf(true, false)
    }
    readonly property Palette contrastLight: StandardPalette {
        colors: Appearance.paletteOf(false, true)
    }
    readonly property Palette contrastDark: StandardPalette {
        colors: Appearance.paletteOf(true, true)
    }
    readonly property Palette current: Appearance.contrast ? (Appearance.dark ? contrastDark : contrastLight)
        : Appearance.dark ? dark : light
}
