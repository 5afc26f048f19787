import QtQuick
import TarnwickKit.views

/// What is set before a run and what is known of the target.
Rectangle {
    id: sidebar

    required property AnalyzerModel analyzer

    color: PaletteKey.palette.sidebar

    ScrollPane {
        anchors.fill: parent

        Column {
            x: 16
            y: 18
            width: parent.width - 32
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
                        chosen: sidebar.analyzer.selectedTests.includes(modelData)
                        onWanted: chosen => sidebar.analyzer.setTestSelected(modelData, chosen)
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
        }
    }
}
