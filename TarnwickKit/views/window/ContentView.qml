pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The whole of the window: the toolbar, the sidebar, and the pane that shows the runs.
Rectangle {
    id: content

    required property AnalyzerModel analyzer
    property alias sidebarFooter: sidebar.footer

    /// Starts a run as the toolbar's button does, with its question before the disk is filled.
    function run(): void {
        toolbar.run();
    }

    PaletteKey.palette: Appearance.palette
    color: PaletteKey.palette.bg
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    FocusKeeper {
        id: keeper
    }
    TargetFacts {
        id: target

        analyzer: content.analyzer
    }
    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        ToolbarView {
            id: toolbar

            Layout.fillWidth: true
            analyzer: content.analyzer
            target: target
        }
        Separator {
            Layout.fillWidth: true
            color: PaletteKey.palette.border
        }
        RowLayout {
            spacing: 0

            SidebarView {
                id: sidebar

                Layout.preferredWidth: 272
                Layout.fillHeight: true
                analyzer: content.analyzer
                target: target
                keeper: keeper
            }
            Separator {
                z: 1 // at a scale such as 1.5 the pane begins within its second pixel
                Layout.fillHeight: true
                color: PaletteKey.palette.border
            }
            MainView {
                Layout.fillWidth: true
                Layout.fillHeight: true
                analyzer: content.analyzer
                target: target
                keeper: keeper
            }
        }
    }
}
