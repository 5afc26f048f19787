pragma ComponentBehavior: Bound

import QtQuick.Templates as T

/// One thing that a menu offers.
T.Action {
    /// The keys that do the same, as the menu shows them.
    property string keys: shortcut ? String(shortcut) : ""
    property bool beginsGroup: false
}
