pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// Makes an image when it is pressed, offers what can be done with it, and says that it was done.
IconButton {
    id: button

    readonly property SharedImage image: SharedImage {
        onReady: {
            picker.active = true;
            (picker.object as PopupMenu).open();
        }
        onTold: sentence => {
            note.active = false; // a new note stands for its whole time
            note.sentence = sentence;
            note.active = true;
        }
    }

    label: qsTr("Share")
    symbol: "square.and.arrow.up"
    symbolSize: 12

    OnDemand {
        id: picker

        SharePicker {
            button: button
            image: button.image
        }
    }
    OnDemand {
        id: note

        property string sentence

        Note {
            owner: button
            text: note.sentence
        }
    }
}
