pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views
import Tarnwick

/// Takes folders and run files that are dropped on it, and shows that it would.
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
