pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The window's content: the toolbar, the sidebar and the main pane.
Rectangle {
    id: content

    required property AnalyzerModel analyzer
    property alias sidebarFooter: sidebar.footer

    /// Starts a run like the toolbar's button, which asks before it fills the disk.
    function run(): void {
        toolbar.run();
    }

    PaletteKey.palette: Appearance.palette
    color: PaletteKey.palette.bg
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Binding {
        target: Metrics
        property: "textScale"
        value: Appearance.textScale
    }
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

                Layout.preferredWidth: ViewMetrics.sidebarWidth
                Layout.fillHeight: true
                analyzer: content.analyzer
                target: target
                keeper: keeper
            }
            Separator {
                z: 1 // at a scale such as 1.5 the pane would cover its second pixel
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
