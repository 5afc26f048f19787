import QtQuick
import TarnwickKit.views

/// The main pane: what it shows follows from the model's phase alone.
Rectangle {
    id: main

    required property AnalyzerModel analyzer
    readonly property string volumeName: analyzer.targetFolder.replace(/^.*\/(?=.)/, "")

    color: PaletteKey.palette.body

    ScrollPane {
        anchors.fill: parent

        Column {
            x: 20
            y: 20
            width: parent.width - 40
            bottomPadding: 20
            spacing: 20

            Loader {
                width: parent.width
                sourceComponent: {
                    switch (main.analyzer.phase) {
                    case AnalyzerModel.Running: return live;
                    case AnalyzerModel.Failed: return failure;
                    default: return main.analyzer.hasResult ? result : idle;
                    }
                }
            }
        }
    }

    Component {
        id: idle

        IdleCard {
            analyzer: main.analyzer
        }
    }
    Component {
        id: live

        LiveRunPane {
            analyzer: main.analyzer
            volumeName: main.volumeName
        }
    }
    Component {
        id: failure

        FailureBanner {
            message: main.analyzer.failureMessage
        }
    }
    Component {
        id: result

        ResultPane {
            analyzer: main.analyzer
            volumeName: main.volumeName
        }
    }
}
