import QtQuick

/// A text of a sheet or a panel, which assistive technology reads on its own.
Text {
    property bool secondary: false

    textFormat: Text.PlainText
    font.pixelSize: 13
    color: secondary ? palette.placeholderText : palette.windowText
    wrapMode: Text.Wrap
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
