pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

Card {
    implicitWidth: words.implicitWidth + 18
    implicitHeight: words.implicitHeight + 6
    radius: height / 2
    color: Qt.alpha(PaletteKey.palette.good, 0.14)

    PlainText {
        id: words

        anchors.centerIn: parent
        text: qsTr("Complete")
        font: Typeface.text(11, Font.DemiBold)
        color: PaletteKey.palette.good
    }
}
