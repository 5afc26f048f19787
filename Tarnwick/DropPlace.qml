pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views
import Tarnwick

/// Accepts folders and run files that are dropped on it. An outline shows that a drop is possible.
DropArea {
    id: place

    required property AppDelegate delegate

    keys: ["text/uri-list"]
    onDropped: drop => {
        delegate.drop(drop.urls);
        drop.accept(Qt.CopyAction);
    }

    Rectangle {
        anchors.fill: parent
        visible: place.containsDrag
        color: Qt.alpha(PaletteKey.palette.teal, 0.06)
        border.width: 2
        border.color: PaletteKey.palette.teal
    }
}
