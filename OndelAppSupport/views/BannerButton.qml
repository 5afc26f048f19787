pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls
import OndelAppSupport.views

/// A button on the maker's backdrop.
T.AbstractButton {
    id: button

    property bool prominent: false
    property string hint: ""

    implicitWidth: words.implicitWidth + leftPadding + rightPadding
    implicitHeight: words.implicitHeight + topPadding + bottomPadding
    horizontalPadding: 10
    verticalPadding: prominent ? 5 : 4
    opacity: pressed ? 0.75 : 1
    activeFocusOnTab: true
    focusPolicy: Qt.TabFocus

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: hint
    Accessible.focusable: true
    Accessible.onPressAction: button.clicked()
    Keys.onReturnPressed: button.clicked()
    Keys.onEnterPressed: button.clicked()

    contentItem: PlainText {
        id: words

        text: button.text
        font.pixelSize: 10
        font.weight: button.prominent ? Font.DemiBold : Font.Normal
        color: "white"
        Accessible.ignored: true
    }
    background: Card {
        radius: 6
        color: button.prominent ? OndelBrand.coralButton : Qt.rgba(1, 1, 1, 0.16)
    }
    HintTip {
        text: button.hint
        visible: button.hovered && button.hint.length > 0
    }
    FocusMark {
        control: button
        outline: "white"
    }
}
