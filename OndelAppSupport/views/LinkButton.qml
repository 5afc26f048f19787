pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// Words that lead somewhere, in the colour of links.
T.AbstractButton {
    id: link

    property real textSize: 12

    implicitWidth: words.implicitWidth
    implicitHeight: words.implicitHeight
    activeFocusOnTab: true
    focusPolicy: Qt.TabFocus

    Accessible.role: Accessible.Link
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: link.clicked()
    Keys.onReturnPressed: link.clicked()
    Keys.onEnterPressed: link.clicked()

    contentItem: PlainText {
        id: words

        text: link.text
        font.pixelSize: link.textSize
        font.underline: link.hovered || link.visualFocus
        color: link.palette.link
        opacity: link.pressed ? 0.6 : 1
        Accessible.ignored: true
    }
    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
    FocusMark {
        control: link
        radius: 4
    }
}
