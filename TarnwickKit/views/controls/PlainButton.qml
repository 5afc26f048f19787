pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The base of the window's buttons, in its colours.
BaseButton {
    id: button

    /// The outline of a button on a card of its own.
    readonly property color frameColor: hovered ? Qt.alpha(PaletteKey.palette.teal, ViewMetrics.hoverOpacity) : PaletteKey.palette.border

    /// A button's ground, which the pointer over it moves away from the colour of its words, or towards it where there
    /// is room for that alone.
    function lit(ground: color, words: color): color {
        if (!hovered)
            return ground;
        const isExtreme = ground.hslLightness < 0.25 || ground.hslLightness > 0.75;
        const towards = isExtreme ? words : words.hslLightness > ground.hslLightness ? Qt.rgba(0, 0, 0, 1) : Qt.rgba(1, 1, 1, 1);
        return Qt.tint(ground, Qt.alpha(towards, 0.16));
    }

    cursorShape: Qt.PointingHandCursor
    focusColor: PaletteKey.palette.teal

    tip: HoverTip {
        owner: button
        text: button.hint
    }
}
