import QtQuick
import OndelAppSupport.views
import TarnwickKit.views
import Tarnwick

Window {
    id: window

    required property UpdaterModel updater

    function show(): void {
        visible = true;
        raise();
        requestActivate();
    }

    title: qsTr("Settings")
    width: view.implicitWidth
    height: view.implicitHeight
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    flags: Qt.Dialog
    color: PaletteKey.palette.bg
    palette: StandardPalettes.current
    PaletteKey.palette: Appearance.palette

    TarnwickSettingsView {
        id: view

        updater: window.updater
        support: AppSupport.nudges
    }
    Shortcut {
        sequences: ["Escape", "Ctrl+W"]
        onActivated: window.close()
    }
}
