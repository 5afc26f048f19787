pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views
import Tarnwick

/// Accepts files that are dropped on it. An outline shows that there is a folder or a run file among them; of anything else
/// the window says that it is not opened.
DropArea {
    id: place

    required property AppDelegate delegate

    keys: ["text/uri-list"]
    onEntered: drag => delegate.consider(drag.urls)
    onExited: delegate.consider([])
    onDropped: drop => {
        delegate.consider([]);
        delegate.drop(drop.urls);
        drop.accept(Qt.CopyAction);
    }

    Rectangle {
        anchors.fill: parent
        visible: place.containsDrag && place.delegate.isDragWelcome
        color: Qt.alpha(PaletteKey.palette.teal, 0.06)
        border.width: 2
        border.color: PaletteKey.palette.teal
    }
}
