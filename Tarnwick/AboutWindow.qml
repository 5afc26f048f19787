pragma ComponentBehavior: Bound

import OndelAppSupport.views
import Tarnwick

/// Which program this is, in the main window's colors.
AboutPanel {
    palette: StandardPalettes.current
}
