pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A row of the history. In compare mode it is a check box and its content is disabled; otherwise it shows the content
/// alone.
Item {
    id: row

    required property bool picking
    required property bool chosen
    required property string label
    required property string detail
    property string hint: ""
    default property alias content: holder.data

    signal wanted(chosen: bool)

    implicitHeight: holder.implicitHeight

    Item {
        id: holder

        anchors.right: parent.right
        width: parent.width - (row.picking ? mark.width + 12 : 0)
        implicitHeight: childrenRect.height
        enabled: !row.picking
    }
    Symbol {
        id: mark

        anchors.verticalCenter: parent.verticalCenter
        visible: row.picking
        name: row.chosen ? "checkmark.circle.fill" : "circle"
        size: 18
        color: row.chosen ? row.PaletteKey.palette.accent
            : (tick.object as ToggleButton)?.hovered ? row.PaletteKey.palette.text : row.PaletteKey.palette.text3
    }
    OnDemand {
        id: tick

        active: row.picking

        ToggleButton {
            width: row.width
            height: row.height
            label: row.label
            detail: row.detail
            hint: row.hint
            corner: 12
            on: row.chosen
            onWanted: on => row.wanted(on)
        }
    }
}
