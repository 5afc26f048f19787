pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// Makes an image when it is pressed, offers what can be done with it, and says that it was done.
IconButton {
    id: button

    readonly property SharedImage image: SharedImage {
        onReady: {
            picker.setSource("SharePicker.qml", {button: button, image: button.image});
            (picker.item as PopupMenu).open();
        }
        onTold: sentence => note.setSource("Note.qml", {button: button, text: sentence})
    }

    label: qsTr("Share")
    symbol: "square.and.arrow.up"
    symbolSize: 12

    Loader {
        id: picker
    }
    Loader {
        id: note
    }
}
