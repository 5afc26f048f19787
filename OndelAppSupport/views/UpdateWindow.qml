import QtQuick
import OndelAppSupport.views

/// Everything that is said and asked about updates. It opens and closes by itself.
Window {
    id: window

    required property UpdaterController updater

    title: qsTr("Software Update")
    width: 480
    height: 160
    visible: updater.state !== UpdaterController.Idle
}
