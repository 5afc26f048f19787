pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The verdict on the target's drive.
RowLayout {
    id: header

    required property bool isFailing
    required property string verdict

    spacing: 6

    Symbol {
        name: header.isFailing ? "exclamationmark.triangle.fill" : "checkmark.shield.fill"
        size: 12
        color: header.isFailing ? "red" : PaletteKey.palette.good
    }
    HeadingText {
        Layout.fillWidth: true
        text: qsTr("S.M.A.R.T.")
        Accessible.ignored: true
    }
    PlainText {
        text: header.verdict
        font: Typeface.text(12)
        color: PaletteKey.palette.text3
        Accessible.ignored: true
    }
}
