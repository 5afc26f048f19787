pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The fonts of views, in the size that the desktop wants: `font: Typeface.mono(11.5)`. A binding on it follows changes.
/// Units: logical pixels as drawn.
QtObject {
    /// Headings, titles, big numbers, the run button.
    function display(size: real, weight = Font.DemiBold): font {
        return DrawnTypeface.display(size * Metrics.textScale, weight);
    }
    /// The same with digits of equal width, for figures that change or stand below each other.
    function figures(size: real, weight = Font.DemiBold): font {
        return DrawnTypeface.figures(size * Metrics.textScale, weight);
    }
    /// Labels, rows, descriptions.
    function text(size: real, weight = Font.Normal): font {
        return DrawnTypeface.text(size * Metrics.textScale, weight);
    }
    /// Numbers, units, time stamps, axis labels. `spacing` is added between letters.
    function mono(size: real, spacing = 0): font {
        return DrawnTypeface.mono(size * Metrics.textScale, spacing * Metrics.textScale);
    }
}
