pragma ComponentBehavior: Bound

import OndelAppSupport.views
import Tarnwick

/// The About panel in the main window's colors.
AboutPanel {
    palette: StandardPalettes.current
    drawsFrame: WindowFrames.areOurs
}
