pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The facts of the target: its file system and its drive. Which sections are expanded is stored.
Column {
    id: sections

    required property AnalyzerModel analyzer
    required property TargetFacts target

    // Empty and collapsed sections have no items: assistive technology would read them.
    OnDemand {
        active: sections.target.hasCapabilities
        file: "CapabilitiesSection.qml"
        given: ({
            target: sections.target,
            kept: kept
        })
    }
    OnDemand {
        active: sections.target.hasHealth
        file: "HealthSection.qml"
        given: ({
            analyzer: sections.analyzer,
            target: sections.target,
            kept: kept
        })
    }
    OnDemand {
        active: sections.target.healthNote !== ""

        Column {
            width: sections.width

            SidebarDivider {
                width: parent.width
                visible: !sections.target.hasHealth
            }
            PlainText {
                x: ViewMetrics.sidebarInset
                width: parent.width - 2 * x
                topPadding: 6
                text: sections.target.healthNote
                wrapMode: Text.Wrap
                font: Typeface.text(12)
                color: PaletteKey.palette.text2
            }
        }
    }

    SidebarState {
        id: kept
    }
}
