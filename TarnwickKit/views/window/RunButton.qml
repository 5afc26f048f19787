pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls
import TarnwickKit.views

/// Starts a run, or stops the current one or the capacity check.
PlainButton {
    id: button

    required property AnalyzerModel analyzer
    readonly property bool stops: analyzer.isBusy

    label: stops ? qsTr("Stop") : qsTr("Run Benchmark")
    corner: 10
    leftPadding: 18
    rightPadding: 18
    topPadding: 9
    bottomPadding: 9
    enabled: stops || analyzer.canRun

    function run(): void {
        if (analyzer.isFillDisk)
            confirmFill();
        else
            analyzer.start();
    }
    function confirmFill(): void {
        question.active = true;
        (question.object as T.Popup).open();
    }

    onClicked: stops ? analyzer.cancel() : run()

    background: Card {
        radius: button.corner
        color: button.stops ? button.lit(PaletteKey.palette.text2, PaletteKey.palette.onStop)
                            : button.lit(PaletteKey.palette.accent, PaletteKey.palette.onAccent)
        shadowColor: button.stops ? "transparent" : PaletteKey.palette.shadow
        shadowRadius: 9
        shadowOffset: 5
    }
    contentItem: Row {
        readonly property color ink: button.stops ? PaletteKey.palette.onStop : PaletteKey.palette.onAccent

        spacing: button.stops ? 8 : 9

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: button.stops ? "stop.fill" : "play.fill"
            size: 10
            color: parent.ink
        }
        PlainText {
            text: button.label
            font: Typeface.display(14)
            color: parent.ink
            Accessible.ignored: true
        }
    }

    Shortcut {
        sequences: ["Ctrl+Return", "Ctrl+Enter"]
        enabled: !button.stops && button.enabled
        onActivated: button.run()
    }
    OnDemand {
        id: question

        file: "FillQuestion.qml"
        given: ({
            parent: button,
            analyzer: button.analyzer
        })
    }
}
