pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// What a capacity check has found: the sentence, the map, the facts.
ColumnLayout {
    id: finding

    required property LiveCheck check

    spacing: 12

    Connections {
        target: finding.check

        function onNoted(sentence: string): void {
            note.active = false; // a new note is shown for its whole time
            note.sentence = sentence;
            note.active = true;
        }
    }
    RowLayout {
        spacing: 12

        VerdictSign {
            Layout.alignment: Qt.AlignTop
            Layout.topMargin: 2
            verdict: finding.check.verdict
            size: 22
        }
        BodyText {
            Layout.fillWidth: true
            text: finding.check.sentence
            font: Typeface.display(19)
            color: PaletteKey.palette.text
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
    }
    Flow {
        Layout.fillWidth: true
        spacing: 8

        SmallButton {
            id: saver

            label: qsTr("Save Report…")
            symbol: "square.and.arrow.up"
            onClicked: finding.check.save(saver)

            OnDemand {
                id: note

                property string sentence

                Note {
                    owner: saver
                    text: note.sentence
                }
            }
        }
        SmallButton {
            label: qsTr("Copy")
            hint: qsTr("Copy the report as text")
            symbol: ""
            onClicked: finding.check.copy()
        }
        SmallButton {
            label: qsTr("New Check")
            symbol: ""
            onClicked: finding.check.forget()
        }
    }
    CapacityRange {
        Layout.fillWidth: true
        check: finding.check
    }
    InfoList {
        Layout.fillWidth: true
        Layout.maximumWidth: Metrics.scaled(620)
        items: finding.check.facts
    }
    Repeater {
        model: finding.check.places

        BodyText {
            required property string modelData

            Layout.fillWidth: true
            text: modelData
            font: Typeface.text(13)
            color: PaletteKey.palette.text
        }
    }
    Repeater {
        model: finding.check.notes

        Caption {
            required property string modelData

            Layout.fillWidth: true
            text: modelData
        }
    }
}
