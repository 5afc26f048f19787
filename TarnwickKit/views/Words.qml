import QtQuick

/// A text that assistive technology reads on its own, not as the name of something else.
Text {
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
