pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// A button without looks of its own: what it shows is its content item. It tells assistive technology what it is, answers
/// to Space and Return, and shows when it has the keyboard's focus.
T.AbstractButton {
    id: button

    /// Not the toolkit's `text`, in which an ampersand makes a shortcut.
    required property string label
    property string hint: ""
    /// What assistive technology reads after the label: a value, an explanation.
    property string detail: hint
    property real corner: Metrics.buttonCorner
    property color focusColor: palette.highlight
    property bool dimsWhenInactive: true
    property int cursorShape: Qt.ArrowCursor
    /// Shows the hint.
    property Component tip: null

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    opacity: !dimsWhenInactive ? 1 : !enabled ? Metrics.disabledOpacity : pressed ? Metrics.pressedOpacity : 1
    focusPolicy: Qt.TabFocus
    activeFocusOnTab: true

    Accessible.role: checkable ? Accessible.CheckBox : Accessible.Button
    Accessible.name: label
    // The toolkit has no word for a disabled item on the accessibility tree.
    Accessible.description: enabled ? detail : qsTr("Not available now")
    Accessible.focusable: enabled
    Accessible.onPressAction: if (button.enabled) button.activate()
    Keys.onReturnPressed: button.activate()
    Keys.onEnterPressed: button.activate()

    function activate(): void {
        if (checkable)
            toggle();
        else
            clicked();
    }

    HoverHandler {
        id: pointer

        cursorShape: button.cursorShape
    }
    // A history has hundreds of buttons, and one of them has the pointer.
    OnDemand {
        active: pointer.hovered && button.hint.length > 0
        component: button.tip
    }
    OnDemand {
        active: button.visualFocus

        FocusMark {
            control: button
            corner: button.corner
            outline: button.focusColor
        }
    }
}
