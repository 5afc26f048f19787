pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// What a check says about the volume, as a symbol.
Symbol {
    required property int verdict

    name: verdict === LiveCheck.Good ? "checkmark.circle.fill" : verdict === LiveCheck.Bad ? "exclamationmark.triangle.fill" : "info.circle"
    color: verdict === LiveCheck.Good ? PaletteKey.palette.good : verdict === LiveCheck.Bad ? PaletteKey.palette.danger : PaletteKey.palette.text2
}
