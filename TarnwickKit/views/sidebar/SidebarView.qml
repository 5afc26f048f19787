pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// The sidebar: tests, settings, and the facts of the target.
Rectangle {
    id: sidebar

    required property AnalyzerModel analyzer
    required property TargetFacts target
    required property FocusKeeper keeper
    /// Stays at the foot while the rest scrolls; may be empty.
    property alias footer: foot.data

    color: PaletteKey.palette.sidebar

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
        }
    }
    Item {
        id: inset

        anchors.bottom: parent.bottom
        width: parent.width
        height: foot.height > 0 ? foot.height + 28 : 0

        Item {
            id: foot

            x: ViewMetrics.sidebarMargin
            y: 14
            width: parent.width - 2 * x
            height: childrenRect.height
        }
    }
}
