pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The place of the main pane, which is made after the first frame: it may show more than all the rest.
Rectangle {
    id: place

    required property AnalyzerModel analyzer
    required property TargetFacts target
    required property FocusKeeper keeper

    color: PaletteKey.palette.body

    Connections {
        target: place.Window.window
        enabled: !view.active

        function onFrameSwapped(): void {
            view.active = true;
        }
    }
    OnDemand {
        id: view

        file: "MainView.qml"
        given: ({
            analyzer: place.analyzer,
            target: place.target,
            keeper: place.keeper
        })
    }
}
