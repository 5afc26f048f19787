pragma ComponentBehavior: Bound

import QtQuick

/// The one item for text. It shows markup literally, so that a name from outside cannot load a picture or insert a link.
/// Assistive technology reads it, unless Accessible.ignored is set because an ancestor has the same text as its name.
PlainTextBase {
    /// Shadows the property of Text with a read-only one, so that setting another format is an error.
    readonly property int textFormat: Text.PlainText

    Accessible.role: Accessible.StaticText
    Accessible.name: Accessible.ignored ? "" : text // every change of a name is announced
}
