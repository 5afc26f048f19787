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
    /// Too narrow for a sidebar beside the main pane. It is a drawer over it then.
    readonly property bool isNarrow: width > 0 && width < ViewMetrics.drawerWidth
    property bool isDrawerOpen: false

    /// Starts a run like the toolbar's button, which asks before it fills the disk.
    function run(): void {
        toolbar.run();
    }
    function openDrawer(reason: int): void {
        isDrawerOpen = true;
        sidebar.nextItemInFocusChain().forceActiveFocus(reason);
    }
    /// The focus goes back to the button if it was in the drawer.
    function closeDrawer(reason: int): void {
        const hadFocus = keeper.isWithin(keeper.last, sidebar);
        isDrawerOpen = false;
        if (hadFocus)
            toolbar.focusDrawerButton(reason);
    }

    PaletteKey.palette: Appearance.palette
    color: PaletteKey.palette.bg
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    onIsNarrowChanged: closeDrawer(Qt.OtherFocusReason)

    Binding {
        target: Metrics
        property: "textScale"
        value: Appearance.textScale
    }
    FocusKeeper {
        id: keeper

        onLastChanged: {
            if (content.isDrawerOpen && isWithin(last, main))
                content.isDrawerOpen = false;
        }
    }
    TargetFacts {
        id: target

        analyzer: content.analyzer
    }
    Connections {
        target: content.analyzer

        function onPhaseChanged(): void {
            if (content.isDrawerOpen && content.analyzer.isRunning)
                content.closeDrawer(Qt.OtherFocusReason);
        }
    }
    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        ToolbarView {
            id: toolbar

            Layout.fillWidth: true
            analyzer: content.analyzer
            target: target
            hasDrawer: content.isNarrow
            isDrawerOpen: content.isDrawerOpen
            onDrawerWanted: (open, reason) => open ? content.openDrawer(reason) : content.closeDrawer(reason)
        }
        Separator {
            Layout.fillWidth: true
            color: PaletteKey.palette.border
        }
        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            OnDemand {
                active: content.isNarrow && content.isDrawerOpen

                DrawerShade {
                    z: 2
                    anchors.fill: parent
                    drawer: sidebar
                    onClosed: content.closeDrawer(Qt.OtherFocusReason)
                }
            }
            SidebarView {
                id: sidebar

                z: content.isNarrow ? 3 : 0
                width: ViewMetrics.sidebarWidth
                anchors.left: parent.left
                anchors.top: parent.top
                anchors.bottom: parent.bottom
                visible: !content.isNarrow || content.isDrawerOpen
                analyzer: content.analyzer
                target: target
                keeper: keeper
                isDrawer: content.isNarrow
                Keys.enabled: content.isNarrow
                Keys.onEscapePressed: content.closeDrawer(Qt.TabFocusReason)
            }
            Separator {
                id: rule

                z: content.isNarrow ? 3 : 1 // at a scale such as 1.5 the pane would cover its second pixel
                anchors.left: sidebar.right
                anchors.top: parent.top
                anchors.bottom: parent.bottom
                visible: sidebar.visible
                color: PaletteKey.palette.border
            }
            MainPlace {
                id: main

                anchors.left: content.isNarrow ? parent.left : rule.right
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.bottom: parent.bottom
                analyzer: content.analyzer
                target: target
                keeper: keeper
            }
        }
    }
}
