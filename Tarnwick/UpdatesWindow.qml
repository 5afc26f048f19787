pragma ComponentBehavior: Bound

import OndelAppSupport.views
import Tarnwick

/// Everything about updates, in the main window's colors.
UpdateWindow {
    palette: StandardPalettes.current
}
