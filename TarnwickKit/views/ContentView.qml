import QtQuick
import QtQuick.Layouts
import TarnwickKit.views

Rectangle {
    id: content

    required property AnalyzerModel analyzer

    PaletteKey.palette: Appearance.palette
    color: PaletteKey.palette.bg
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        ToolbarView {
            Layout.fillWidth: true
            analyzer: content.analyzer
        }
        Rule {
            Layout.fillWidth: true
            color: PaletteKey.palette.border
        }
        RowLayout {
            spacing: 0

            SidebarView {
                Layout.preferredWidth: 272
                Layout.fillHeight: true
                analyzer: content.analyzer
            }
            Rule {
                Layout.fillHeight: true
                color: PaletteKey.palette.border
            }
            MainView {
                Layout.fillWidth: true
                Layout.fillHeight: true
                analyzer: content.analyzer
            }
        }
    }
}
