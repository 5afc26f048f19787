pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The sidebar: tests, settings, and the facts of the target.
Rectangle {
    id: sidebar

    required property AnalyzerModel analyzer
    required property TargetFacts target
    required property FocusKeeper keeper
    /// It lies over the main pane, in a window too narrow for both.
    property bool isDrawer: false
    /// So low that the foot scrolls with the rest, which would have no room above it.
    readonly property bool isLow: height < foot.height + ViewMetrics.leastAboveFoot
    /// Stays at the foot while the rest scrolls; may be empty.
    property alias footer: foot.data

    color: PaletteKey.palette.sidebar
    Accessible.role: isDrawer ? Accessible.Dialog : Accessible.Pane
    Accessible.name: qsTr("Tests and Settings")

    function holds(tests: list<string>, test: string): bool {
        return tests.includes(test);
    }

    ScrollPane {
        keeper: sidebar.keeper
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: inset.top

        Column {
            x: ViewMetrics.sidebarMargin
            y: 18
            width: parent.width - 2 * x
            bottomPadding: 22

            OnDemand {
                active: sidebar.isDrawer && sidebar.target.folder.length > 0

                FolderLine {
                    anchors.left: parent?.left
                    width: Math.min(implicitWidth, parent?.width ?? 0)
                    bottomPadding: verticalPadding + 10
                    target: sidebar.target
                }
            }
            SidebarHeader {
                text: qsTr("Tests")
            }
            Column {
                width: parent.width
                spacing: 3

                Repeater {
                    model: sidebar.analyzer.tests

                    TestRow {
                        required property int index
                        required property string modelData

                        width: parent.width
                        title: sidebar.analyzer.testTitles[index]
                        figure: sidebar.analyzer.sidebarValues[index]
                        explanation: Words.ofTest(modelData)
                        isMarked: sidebar.analyzer.sidebarMarks[index]
                        on: sidebar.holds(sidebar.analyzer.selectedTests, modelData)
                        onWanted: on => sidebar.analyzer.setTestSelected(modelData, on)
                    }
                }
            }
            SidebarHeader {
                topPadding: 6
                text: qsTr("Settings")
            }
            SettingsBlock {
                width: parent.width
                analyzer: sidebar.analyzer
            }
            TargetSections {
                width: parent.width
                analyzer: sidebar.analyzer
                target: sidebar.target
            }
            Item {
                id: end

                width: parent.width
                height: foot.height + 20
                visible: sidebar.isLow && foot.height > 0
            }
        }
    }
    Item {
        id: inset

        anchors.bottom: parent.bottom
        width: parent.width
        height: foot.height > 0 && !sidebar.isLow ? foot.height + 28 : 0

        Item {
            id: foot

            parent: sidebar.isLow ? end : inset
            x: sidebar.isLow ? 0 : ViewMetrics.sidebarMargin
            y: sidebar.isLow ? 20 : 14
            width: sidebar.width - 2 * ViewMetrics.sidebarMargin
            height: childrenRect.height
        }
    }
}
