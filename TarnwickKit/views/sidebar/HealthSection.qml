pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The health of the target's drive.
Column {
    id: section

    required property AnalyzerModel analyzer
    required property TargetFacts target
    required property SidebarState kept

    width: parent?.width ?? 0

    SidebarDivider {
        width: parent.width
    }
    CollapsibleSection {
        id: health

        //: The drive's own verdict: it is going to break
        readonly property string verdict: section.target.isFailing ? qsTr("Failing")
            //: The drive's own verdict: it finds itself sound
            : qsTr("Verified")

        width: parent.width
        label: qsTr("S.M.A.R.T.")
        // The note is a text of its own. Read alone, the verdict would seem to cover all disks.
        //: %1 is the verdict (Failing, Verified), %2 a sentence without its full stop
        detail: section.target.healthNote === "" ? verdict : qsTr("%1. %2").arg(verdict).arg(section.target.healthNote)
        isExpanded: section.kept.healthExpanded
        onToggled: expanded => section.kept.healthExpanded = expanded

        header: SMARTHeader {
            width: parent.width
            isFailing: section.target.isFailing
            verdict: health.verdict
        }

        OnDemand {
            active: health.isShown

            SMARTList {
                x: ViewMetrics.sidebarInset
                width: health.width - 2 * x
                analyzer: section.analyzer
                target: section.target
            }
        }
    }
}
