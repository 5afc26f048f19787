pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The folder under test. A press shows it in the file manager.
PlainButton {
    id: line

    required property TargetFacts target

    label: qsTr("Show in Folder")
    detail: target.folder
    hint: qsTr("Show in Folder: %1").arg(target.folder)
    corner: 6
    horizontalPadding: 6
    verticalPadding: Math.max(0, (Metrics.leastTarget - implicitContentHeight) / 2)
    onClicked: target.showFolder()

    contentItem: RowLayout {
        spacing: 6

        Symbol {
            name: "folder"
            size: 11
            color: path.color
        }
        PlainText {
            id: path

            Layout.fillWidth: true
            text: line.target.folder
            horizontalAlignment: Text.AlignLeft
            font: Typeface.mono(10.5)
            color: line.hovered ? PaletteKey.palette.text : PaletteKey.palette.text2
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
    }
}
