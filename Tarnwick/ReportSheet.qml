pragma ComponentBehavior: Bound

import QtQuick
import OndelAppSupport.views
import OndelControls
import TarnwickKit.views

/// The form for problem reports, as a sheet over the main window.
BaseSheet {
    id: sheet

    visible: true
    fill: PaletteKey.palette.bg
    outline: PaletteKey.palette.border
    shadowColor: PaletteKey.palette.shadow

    contentItem: ReportProblemView {
        focus: true
        onDismissed: sheet.close()
    }
}
