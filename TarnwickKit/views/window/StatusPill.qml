pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

Row {
    id: pill

    required property AnalyzerModel analyzer
    readonly property string status: {
        if (analyzer.isChecking)
            return qsTr("Checking…");
        switch (analyzer.phase) {
        case AnalyzerModel.Running: return qsTr("Running…");
        //: Adjective: the run has come to its end
        case AnalyzerModel.Done: return qsTr("Complete");
        case AnalyzerModel.Failed: return qsTr("Failed");
        default: return qsTr("Ready");
        }
    }

    spacing: 8
    Accessible.role: Accessible.StatusBar
    Accessible.name: status

    Card {
        anchors.verticalCenter: parent.verticalCenter
        width: 7
        height: 7
        radius: 3.5
        color: {
            if (pill.analyzer.isChecking)
                return PaletteKey.palette.teal;
            switch (pill.analyzer.phase) {
            case AnalyzerModel.Running: return PaletteKey.palette.teal;
            case AnalyzerModel.Failed: return PaletteKey.palette.amber;
            default: return PaletteKey.palette.goodDot;
            }
        }
    }
    PlainText {
        text: pill.status
        font: Typeface.mono(11.5)
        color: PaletteKey.palette.text3
        Accessible.ignored: true
    }
}
