pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// The base of buttons that show a state which is kept elsewhere. A press asks for the other state.
PlainButton {
    required property bool on

    signal wanted(on: bool)

    checkable: true
    checked: on
    onCheckedChanged: if (checked !== on) wanted(checked)
}
