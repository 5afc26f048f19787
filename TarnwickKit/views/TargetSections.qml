import QtQuick
import TarnwickKit.views

/// What is known of the target: its file system and its drive. Which of the two is open is remembered.
Column {
    id: sections

    required property AnalyzerModel analyzer
    required property TargetFacts target

    SidebarDivider {
        width: parent.width
        visible: sections.target.hasCapabilities
    }
    CollapsibleSection {
        width: parent.width
        visible: sections.target.hasCapabilities
        label: qsTr("Volume Capabilities")
        isExpanded: kept.capabilitiesExpanded
        onToggled: expanded => kept.capabilitiesExpanded = expanded

        header: Text {
            text: qsTr("Volume Capabilities")
            font: Typeface.display(14)
            color: PaletteKey.palette.heading
            Accessible.ignored: true
        }

        CapabilitiesList {
            x: 4
            width: parent.width - 8
            target: sections.target
        }
        Item {
            width: 1
            height: 14
        }
        FeatureChips {
            x: 4
            width: parent.width - 8
            target: sections.target
        }
    }
    SidebarDivider {
        width: parent.width
        visible: sections.target.hasHealth
    }
    CollapsibleSection {
        width: parent.width
        visible: sections.target.hasHealth
        label: qsTr("S.M.A.R.T.")
        detail: sections.target.isFailing ? qsTr("Failing") : qsTr("Verified")
        isExpanded: kept.healthExpanded
        onToggled: expanded => kept.healthExpanded = expanded

        header: SMARTHeader {
            width: parent.width
            target: sections.target
        }

        SMARTList {
            x: 4
            width: parent.width - 8
            analyzer: sections.analyzer
            target: sections.target
        }
    }

    SidebarState {
        id: kept
    }
}
