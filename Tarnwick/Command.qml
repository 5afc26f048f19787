pragma ComponentBehavior: Bound

import QtQuick.Templates as T

/// A command of the menu bar.
T.Action {
    /// The shortcut as the menu shows it.
    property string keys: ""
    property bool beginsGroup: false
}
