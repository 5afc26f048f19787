pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import OndelControls
import TarnwickKit.views

/// Shows the volume under test and opens the menu to choose another.
PlainButton {
    id: dropdown

    required property AnalyzerModel analyzer
    required property TargetFacts target
    readonly property bool hasTarget: analyzer.targetFolder.length > 0

    label: qsTr("Volume")
    hint: !title.truncated ? target.folder : hasTarget ? target.volumeName + "\n" + target.folder : target.volumeName
    corner: 10
    leftPadding: 9
    rightPadding: 12
    topPadding: 7
    bottomPadding: 7
    implicitWidth: Math.max(Metrics.scaled(244), implicitContentWidth + leftPadding + rightPadding)
    enabled: !analyzer.isBusy
    opacity: pressed ? Metrics.pressedOpacity : 1 // not dimmed while disabled: it is read during a run

    detail: title.text + ", " + subtitle.text
    onClicked: show()
    Keys.onDownPressed: show()

    function show(): void {
        menu.active = true;
        (menu.object as T.Popup).open();
    }

    background: Card {
        radius: dropdown.corner
        color: PaletteKey.palette.panel
        outline: dropdown.frameColor
        shadowColor: Qt.rgba(0, 0, 0, 0.04)
        shadowRadius: 1
        shadowOffset: 1
    }
    contentItem: RowLayout {
        spacing: 11

        VolumeBadge {
            symbol: dropdown.analyzer.selectedVolumeIcon
            color: dropdown.hasTarget ? PaletteKey.palette.badgeStart(dropdown.target.volumeKind) : PaletteKey.palette.text3
            endColor: dropdown.hasTarget ? PaletteKey.palette.badgeEnd(dropdown.target.volumeKind)
                                         : Qt.alpha(PaletteKey.palette.text3, 0.7)
        }
        ColumnLayout {
            spacing: 1

            PlainText {
                id: title

                Layout.fillWidth: true
                text: dropdown.target.volumeName || qsTr("Select a volume")
                horizontalAlignment: Text.AlignLeft
                font: Typeface.display(14)
                color: PaletteKey.palette.text
                elide: Text.ElideRight
                Accessible.ignored: true
            }
            PlainText {
                id: subtitle

                Layout.fillWidth: true
                text: dropdown.target.volumeLine || qsTr("No volume selected")
                horizontalAlignment: Text.AlignLeft
                font: Typeface.mono(10.5)
                color: PaletteKey.palette.text3
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }
        Symbol {
            Layout.leftMargin: 8
            name: "chevron.up.chevron.down"
            size: 11
            color: PaletteKey.palette.text3
            opacity: dropdown.enabled ? 1 : 0.4
        }
    }

    Connections {
        target: dropdown.target

        function onTold(sentence: string): void {
            note.active = false; // a new note is shown for its whole time
            note.given = {
                owner: dropdown,
                text: sentence
            };
            note.active = true;
        }
    }
    OnDemand {
        id: note

        file: "Note.qml"
    }
    OnDemand {
        id: menu

        file: "VolumeMenu.qml"
        given: ({
            button: dropdown,
            analyzer: dropdown.analyzer,
            target: dropdown.target
        })
    }
}
