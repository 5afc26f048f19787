pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// A field for one line, which tells within itself what it is for while it is empty.
T.TextField {
    id: field

    required property string prompt

    implicitWidth: 200
    implicitHeight: contentHeight + topPadding + bottomPadding
    leftPadding: 8
    rightPadding: 8
    topPadding: 6
    bottomPadding: 6
    font.family: Application.font.family
    font.pixelSize: 13
    color: palette.text
    selectionColor: palette.highlight
    selectedTextColor: palette.highlightedText
    selectByMouse: true
    Accessible.name: prompt

    background: FieldFrame {
        focused: field.activeFocus
    }
    PlainText {
        x: field.leftPadding
        y: field.topPadding
        width: field.width - field.leftPadding - field.rightPadding
        visible: field.length + field.preeditText.length === 0
        text: field.prompt
        font.pixelSize: 13
        color: field.palette.placeholderText
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
