import QtQuick
import Tarnwick
import TarnwickKit.views

/// The one main window.
Window {
    id: window

    required property AppDelegate delegate

    title: "Ondel Tarnwick"
    width: 1080
    height: 720
    minimumWidth: view.leastWidth
    minimumHeight: view.leastHeight
    visible: true
    color: view.color

    onClosing: close => {
        close.accepted = false;
        delegate.terminate();
    }

    TarnwickView {
        id: view

        anchors.fill: parent
        analyzer: window.delegate.model
    }
    Shortcut {
        sequences: [StandardKey.Quit]
        onActivated: window.delegate.terminate()
    }
}
