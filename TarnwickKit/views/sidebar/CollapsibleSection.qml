pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A section that a press on its heading expands and collapses. Its content need not exist before `isShown`.
Column {
    id: section

    required property string label
    property bool isExpanded: true
    readonly property bool isShown: isExpanded || body.height > 0
    property string detail: ""
    property bool moves: false // only a press is animated
    property alias header: head.data
    default property alias content: holder.data

    signal toggled(expanded: bool)

    PlainButton {
        id: press

        width: parent.width
        label: section.label
        detail: section.detail
        corner: 4
        leftPadding: ViewMetrics.sidebarInset
        rightPadding: ViewMetrics.sidebarInset
        topPadding: 6
        bottomPadding: section.isExpanded ? 11 : 0
        Disclosure.expanded: section.isExpanded
        onClicked: {
            section.moves = true;
            section.toggled(!section.isExpanded);
        }

        contentItem: RowLayout {
            spacing: 6

            Item {
                id: head

                Layout.fillWidth: true
                implicitHeight: childrenRect.height
            }
            Symbol {
                name: "chevron.right"
                size: 9
                weight: Font.DemiBold
                color: press.hovered ? PaletteKey.palette.text : PaletteKey.palette.text3
                rotation: section.isExpanded ? 90 : 0

                Behavior on rotation {
                    enabled: !Appearance.still

                    NumberAnimation {
                        duration: Metrics.foldTime
                        easing.type: Easing.InOutQuad
                    }
                }
            }
        }
    }
    Item {
        id: body

        width: parent.width
        height: section.isExpanded ? holder.height : 0
        clip: true

        Behavior on height {
            enabled: section.moves && !Appearance.still

            NumberAnimation {
                duration: Metrics.foldTime
                easing.type: Easing.InOutQuad
            }
        }

        Column {
            id: holder

            width: parent.width
        }
    }
}
