pragma ComponentBehavior: Bound

import QtQuick

/// The one item for text. It shows markup as the characters it is made of: a name from outside can load no picture and
/// follow no link. Assistive technology reads it, unless it is ignored as part of something that has a name.
PlainTextBase {
    /// Hides the format of Text, so that setting another one is an error.
    readonly property int textFormat: Text.PlainText

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
