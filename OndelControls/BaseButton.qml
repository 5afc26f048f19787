pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// A button without a look of its own; users set its content item and background. It has an accessible role, name and
/// action, reacts to Space and Return, and marks the keyboard focus.
T.AbstractButton {
    id: button

    /// Replaces the toolkit's `text`, in which an ampersand defines a shortcut.
    required property string label
    property string hint: ""
    /// What assistive technology reads after the label: a value, an explanation.
    property string detail: hint
    property real corner: Metrics.buttonCorner
    property color focusColor: palette.highlight
    property bool dimsWhenInactive: true
    property int cursorShape: Qt.ArrowCursor
    /// Is created to show the hint.
    property Component tip: null
    /// The hint is shown to the keyboard's user too; else it only names what the button shows as a symbol.
    property bool explains: false

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    opacity: !dimsWhenInactive ? 1 : !enabled ? Metrics.disabledOpacity : pressed ? Metrics.pressedOpacity : 1
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    activeFocusOnTab: true

    Accessible.role: checkable ? Accessible.CheckBox : Accessible.Button
    Accessible.name: label
    // Qt does not report the disabled state to assistive technology.
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
    // A history has hundreds of buttons; only the hovered one needs a tip.
    OnDemand {
        active: button.hint.length > 0 && (pointer.hovered || button.explains && button.visualFocus)
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
