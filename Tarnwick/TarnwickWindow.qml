import QtQuick
import Tarnwick
import TarnwickKit.views

/// The one main window.
Window {
    id: window

    required property AppDelegate delegate

    title: "Ondel Tarnwick"
    width: 1180
    height: 780
    minimumWidth: view.leastWidth
    minimumHeight: view.leastHeight
    visible: true
    color: view.color

    Component.onCompleted: delegate.setWindow(window)
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
        sequences: ["Ctrl+Q"]
        onActivated: window.delegate.terminate()
    }
}
