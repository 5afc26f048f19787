pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// The base of check boxes and switches. The state is kept elsewhere; a press requests the opposite.
PlainButton {
    required property bool on

    signal wanted(on: bool)

    checkable: true
    checked: on
    onCheckedChanged: if (checked !== on) wanted(checked)
}
