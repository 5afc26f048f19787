import QtQuick
import OndelAppSupport.views

/// Who made this, and of what.
Window {
    id: panel

    property appIdentity app: AppSupport.app

    /// Opens the panel, or brings the open one to the front.
    function show(): void {
        visible = true;
        raise();
        requestActivate();
    }

    title: qsTr("About %1").arg(app.name)
    width: 320
    height: 300
}
