pragma ComponentBehavior: Bound

import OndelAppSupport.views
import Tarnwick

/// The update window in the main window's colors.
UpdateWindow {
    palette: StandardPalettes.current
    drawsFrame: WindowFrames.areOurs
}
