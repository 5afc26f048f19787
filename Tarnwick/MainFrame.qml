pragma ComponentBehavior: Bound

import OndelControls
import Tarnwick

/// The frame of the main window, whose menu bar stands in the title bar.
WindowFrame {
    required property TarnwickWindow host

    window: host
    titleHeight: host.menuHeight
    titleIndent: host.menuWidth
}
