pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// A push button of a sheet or a panel. The prominent one is the one that Return presses.
T.Button {
    id: button

    property bool prominent: false

    implicitWidth: Math.max(74, words.implicitWidth + leftPadding + rightPadding)
    implicitHeight: words.implicitHeight + topPadding + bottomPadding
    horizontalPadding: 14
    verticalPadding: 5
    activeFocusOnTab: true
    focusPolicy: Qt.TabFocus

    Accessible.role: Accessible.Button
    Accessible.name: text
    // The toolkit has no word for a disabled item on the accessibility tree.
    Accessible.description: enabled ? "" : qsTr("Not available now")
    Accessible.focusable: enabled
    Accessible.onPressAction: if (button.enabled) button.clicked()
    Keys.onReturnPressed: button.clicked()
    Keys.onEnterPressed: button.clicked()

    contentItem: PlainText {
        id: words

        text: button.text
        font.pixelSize: 13
        font.weight: button.prominent ? Font.DemiBold : Font.Medium
        color: button.prominent ? button.palette.highlightedText : button.palette.buttonText
        horizontalAlignment: Text.AlignHCenter
        opacity: button.enabled ? 1 : 0.45
        Accessible.ignored: true
    }
    background: Card {
        radius: 6
        color: button.prominent ? button.palette.highlight : button.palette.button
        outline: button.prominent ? "transparent" : button.palette.mid
        opacity: !button.enabled ? 0.5 : button.pressed ? 0.75 : 1
    }
    FocusMark {
        control: button
    }
}
