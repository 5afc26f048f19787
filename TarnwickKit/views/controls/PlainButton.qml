pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls
import TarnwickKit.views

/// A button without looks of its own: what it shows is its content item. It says to assistive technology what it is,
/// answers to Space and Return, and shows when it has the keyboard's focus.
T.AbstractButton {
    id: button

    required property string label
    property string hint: ""
    /// What assistive technology reads after the label: a value, an explanation.
    property string detail: hint
    property real corner: 8
    /// It gets paler while it is pressed or not available.
    property bool pales: true

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    opacity: !pales ? 1 : !enabled ? 0.5 : pressed ? 0.75 : 1
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

        cursorShape: Qt.PointingHandCursor
    }
    // A history has hundreds of buttons, and one of them has the pointer.
    OnDemand {
        active: pointer.hovered && button.hint.length > 0

        HoverTip {
            parent: button
            text: button.hint
        }
    }
    OnDemand {
        active: button.visualFocus

        FocusRing {
            anchors.fill: parent
            anchors.margins: -3
            z: 10
            corner: button.corner + 3
        }
    }
}
