pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The menu of actions with an image.
PopupMenu {
    id: picker

    required property PlainButton button
    required property SharedImage image

    parent: button
    x: button.width - width
    y: button.height + Metrics.menuGap

    PopupMenuItem {
        text: qsTr("Copy Image")
        onTriggered: picker.image.copy()
    }
    PopupMenuItem {
        text: qsTr("Save As…")
        onTriggered: picker.image.saveAs(picker.button)
    }
    PopupMenuItem {
        text: qsTr("Show in Folder")
        onTriggered: picker.image.showInFolder()
    }
    PopupMenuItem {
        text: qsTr("Send by Email…")
        onTriggered: picker.image.sendByEmail()
    }
}
