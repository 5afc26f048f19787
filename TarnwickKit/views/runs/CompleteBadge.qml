pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

Chip {
    //: Adjective: the run has come to its end
    text: qsTr("Complete")
    font: Typeface.text(11, Font.DemiBold)
    color: Qt.alpha(PaletteKey.palette.good, 0.14)
    ink: PaletteKey.palette.good
}
