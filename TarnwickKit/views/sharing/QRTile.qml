pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A web address as a QR code, on white in every palette. Hidden when the address is too long for a code.
Card {
    id: tile

    /// Without its scheme.
    required property string link

    implicitWidth: code.width + 10
    implicitHeight: code.height + 10
    visible: code.valid
    radius: 7
    color: "white"
    outline: PaletteKey.palette.border

    QRCodeItem {
        id: code

        x: 5
        y: 5
        width: 46
        height: 46
        text: "https://" + tile.link
    }
}
