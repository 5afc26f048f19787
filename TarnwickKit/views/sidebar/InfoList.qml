pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// Labelled facts, one below the other.
Column {
    id: list

    required property list<infoItem> items

    Repeater {
        model: list.items

        InfoRow {
            required property infoItem modelData

            width: list.width
            label: modelData.label
            value: modelData.value
            warning: modelData.warning
        }
    }
}
