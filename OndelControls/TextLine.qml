pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// A text field of one line, with a prompt while it is empty.
T.TextField {
    id: field

    required property string prompt
    property color promptColor: palette.placeholderText

    implicitWidth: Metrics.fieldWidth
    implicitHeight: contentHeight + topPadding + bottomPadding
    leftPadding: 8
    rightPadding: 8
    topPadding: 6
    bottomPadding: 6
    font: Qt.font({
        family: Application.font.family,
        pixelSize: Metrics.textSize
    })
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
        font.family: field.font.family // not its hinting, which is the toolkit's
        font.pixelSize: field.font.pixelSize
        font.weight: field.font.weight
        color: field.promptColor
        fontSizeMode: Text.HorizontalFit // some languages take more room
        minimumPixelSize: Math.min(font.pixelSize, Metrics.noteSize)
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
