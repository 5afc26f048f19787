pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A saved run's title, and when and where it was taken: in a line, or in two where one is too short.
ColumnLayout {
    id: words

    required property string title
    required property string stamp
    required property string origin
    /// The width that is there for the texts. Their actual width comes too late: it is known after the layout, and a
    /// change of their height would then need another one.
    required property real room
    readonly property bool isCut: name.truncated || line.truncated || ((second.object as PlainText)?.truncated ?? false)

    Layout.fillWidth: true
    Layout.minimumWidth: 0
    spacing: 2

    PlainText {
        id: name

        Layout.fillWidth: true
        text: words.title
        horizontalAlignment: Text.AlignLeft // in every script
        font: Typeface.display(14)
        color: words.PaletteKey.palette.text
        elide: Text.ElideRight
        maximumLineCount: 1
        Accessible.ignored: true
    }
    PlainText {
        id: line

        readonly property bool fits: whole.width <= words.room

        Layout.fillWidth: true
        text: fits ? whole.text : words.stamp
        horizontalAlignment: Text.AlignLeft
        font: Typeface.mono(10.5)
        color: words.PaletteKey.palette.text3
        elide: Text.ElideRight
        fontSizeMode: fits ? Text.FixedSize : Text.HorizontalFit
        minimumPixelSize: 8
        Accessible.ignored: true

        TextMetrics {
            id: whole

            text: words.stamp + " · " + words.origin
            font: Typeface.mono(10.5)
        }
    }
    OnDemand {
        id: second

        active: !line.fits

        PlainText {
            Layout.fillWidth: true
            Layout.topMargin: -1
            text: words.origin
            horizontalAlignment: Text.AlignLeft
            font: Typeface.mono(10.5)
            color: words.PaletteKey.palette.text3
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
