pragma ComponentBehavior: Bound

import OndelControls
import TarnwickKit.views

/// The track and the knob of a switch in the window's colours.
SwitchTrack {
    moves: !Appearance.still
    activeColor: PaletteKey.palette.accent
    idleColor: PaletteKey.palette.track
    activeKnob: PaletteKey.palette.onAccent
    idleKnob: Appearance.contrast ? PaletteKey.palette.border : PaletteKey.palette.panel
}
