pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelAppSupport.views
import OndelControls
import TarnwickKit.views

/// The form for problem reports, as a sheet over the main window. It scrolls in a window too low for it.
BaseSheet {
    id: sheet

    readonly property Item overlay: T.Overlay.overlay

    visible: true
    width: Math.min(implicitWidth, overlay ? overlay.width - 2 * Metrics.menuMargin : implicitWidth)
    height: Math.min(implicitHeight, overlay ? overlay.height - 2 * Metrics.menuMargin : implicitHeight)
    fill: PaletteKey.palette.bg
    outline: PaletteKey.palette.border
    shadowColor: PaletteKey.palette.shadow

    contentItem: Flickable {
        id: pane

        readonly property Item focusItem: Window.activeFocusItem

        implicitWidth: view.implicitWidth
        implicitHeight: view.implicitHeight
        contentHeight: view.implicitHeight
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        clip: interactive
        onFocusItemChanged: {
            if (!focusItem || !interactive)
                return;
            const top = focusItem.mapToItem(view, 0, 0).y;
            const highest = Math.max(0, top + focusItem.height + Metrics.sheetMargin - height);
            contentY = Math.max(Math.min(contentY, Math.max(0, top - Metrics.sheetMargin)), Math.min(highest, contentHeight - height));
        }

        ReportProblemView {
            id: view

            width: pane.width
            height: implicitHeight
            focus: true
            onDismissed: sheet.close()
        }

        T.ScrollBar.vertical: ScrollMark {
            Accessible.ignored: true
        }
    }
}
