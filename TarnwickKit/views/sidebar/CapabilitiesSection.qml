pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// What the target's file system can do.
Column {
    id: section

    required property TargetFacts target
    required property SidebarState kept

    width: parent?.width ?? 0

    SidebarDivider {
        width: parent.width
    }
    CollapsibleSection {
        id: capabilities

        width: parent.width
        label: qsTr("Volume Capabilities")
        isExpanded: section.kept.capabilitiesExpanded
        onToggled: expanded => section.kept.capabilitiesExpanded = expanded

        header: HeadingText {
            text: capabilities.label
            Accessible.ignored: true
        }

        OnDemand {
            active: capabilities.isShown

            Column {
                x: ViewMetrics.sidebarInset
                width: capabilities.width - 2 * x
                spacing: 14

                CapabilitiesList {
                    width: parent.width
                    target: section.target
                }
                FeatureChips {
                    width: parent.width
                    target: section.target
                }
                PlainText {
                    width: parent.width
                    visible: text !== ""
                    text: section.target.featuresNote
                    font: Typeface.text(11)
                    color: PaletteKey.palette.text2
                    wrapMode: Text.Wrap
                }
            }
        }
    }
}
