pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// The palette for windows. A window copies the one it is given, so that there is another object for another appearance.
QtObject {
    readonly property Palette light: StandardPalette {
        colors: Appearance.lightPalette
    }
    readonly property Palette dark: StandardPalette {
        colors: Appearance.darkPalette
    }
    readonly property Palette current: Appearance.dark ? dark : light
}
