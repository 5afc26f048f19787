pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// Marks the control that has the keyboard focus, just outside its edge.
Card {
    required property T.Control control
    /// The corner radius of the control.
    property real corner: Metrics.fieldCorner

    x: -Metrics.focusGap
    y: -Metrics.focusGap
    z: Metrics.focusLayer
    width: control.width + 2 * Metrics.focusGap
    height: control.height + 2 * Metrics.focusGap
    visible: control.visualFocus
    radius: corner + Metrics.focusGap
    outlineWidth: Metrics.focusLine
    outline: control.palette.highlight
}
