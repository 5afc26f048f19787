import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The verdict on the target's drive.
RowLayout {
    id: header

    required property TargetFacts target

    spacing: 6

    Symbol {
        name: header.target.isFailing ? "exclamationmark.triangle.fill" : "checkmark.shield.fill"
        size: 12
        color: header.target.isFailing ? "red" : PaletteKey.palette.good
    }
    PlainText {
        Layout.fillWidth: true
        text: qsTr("S.M.A.R.T.")
        font: Typeface.display(14)
        color: PaletteKey.palette.heading
        Accessible.ignored: true
    }
    PlainText {
        text: header.target.isFailing ? qsTr("Failing") : qsTr("Verified")
        font: Typeface.text(12)
        color: PaletteKey.palette.text3
        Accessible.ignored: true
    }
}
