pragma ComponentBehavior: Bound

import QtQuick
import OndelAppSupport.views
import TarnwickKit.views
import Tarnwick

PanelWindow {
    id: window

    required property UpdaterModel updater

    title: qsTr("Settings")
    wantedWidth: view.implicitWidth
    wantedHeight: view.implicitHeight
    color: PaletteKey.palette.bg
    palette: StandardPalettes.current
    drawsFrame: WindowFrames.areOurs
    PaletteKey.palette: Appearance.palette

    TarnwickSettingsView {
        id: view

        updater: window.updater
        support: AppSupport.nudges
    }
}
