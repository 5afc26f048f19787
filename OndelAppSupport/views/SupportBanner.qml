import QtQuick
import OndelDrawing
import OndelAppSupport.views

/// The note that asks for support.
Card {
    id: banner

    property SupportNudges nudges: AppSupport.nudges
    property appIdentity app: AppSupport.app

    implicitHeight: 60
    radius: 10
    color: OndelBrand.blue
    endColor: OndelBrand.navy
}
