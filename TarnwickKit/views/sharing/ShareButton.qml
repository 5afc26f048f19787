pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// Makes an image when pressed, offers a menu of actions with it, and shows their result.
IconButton {
    id: button

    /// Those that the image shows.
    required property comparedRuns runs
    readonly property RunExports exports: RunExports {
        onTold: sentence => button.tell(sentence)
    }
    readonly property SharedImage image: SharedImage {
        onReady: {
            picker.active = true;
            (picker.object as PopupMenu).open();
        }
        onTold: sentence => button.tell(sentence)
    }

    function tell(sentence: string): void {
        note.active = false; // a new note is shown for its whole time
        note.sentence = sentence;
        note.active = true;
    }

    //: Button: opens a menu
    label: qsTr("Share")
    symbol: "square.and.arrow.up"
    symbolSize: 12

    OnDemand {
        id: picker

        SharePicker {
            button: button
            image: button.image
            exports: button.exports
            runs: button.runs
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
