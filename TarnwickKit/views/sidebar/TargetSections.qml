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

        Column {
            width: sections.width

            SidebarDivider {
                width: parent.width
            }
            CollapsibleSection {
                id: capabilities

                width: parent.width
                label: qsTr("Volume Capabilities")
                isExpanded: kept.capabilitiesExpanded
                onToggled: expanded => kept.capabilitiesExpanded = expanded

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
                            target: sections.target
                        }
                        FeatureChips {
                            width: parent.width
                            target: sections.target
                        }
                        PlainText {
                            width: parent.width
                            visible: text !== ""
                            text: sections.target.featuresNote
                            font: Typeface.text(11)
                            color: PaletteKey.palette.text2
                            wrapMode: Text.Wrap
                        }
                    }
                }
            }
        }
    }
    OnDemand {
        active: sections.target.hasHealth

        Column {
            width: sections.width

            SidebarDivider {
                width: parent.width
            }
            CollapsibleSection {
                id: health

                readonly property string verdict: sections.target.isFailing ? qsTr("Failing") : qsTr("Verified")

                width: parent.width
                label: qsTr("S.M.A.R.T.")
                // The note is a text of its own. Read alone, the verdict would seem to cover all disks.
                detail: sections.target.healthNote === "" ? verdict : qsTr("%1. %2").arg(verdict).arg(sections.target.healthNote)
                isExpanded: kept.healthExpanded
                onToggled: expanded => kept.healthExpanded = expanded

                header: SMARTHeader {
                    width: parent.width
                    isFailing: sections.target.isFailing
                    verdict: health.verdict
                }

                OnDemand {
                    active: health.isShown

                    SMARTList {
                        x: ViewMetrics.sidebarInset
                        width: health.width - 2 * x
                        analyzer: sections.analyzer
                        target: sections.target
                    }
                }
            }
        }
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
