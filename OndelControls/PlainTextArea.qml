pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

/// The one item for editable or selectable text of several lines. It shows markup literally, as PlainText does.
T.TextArea {
    /// Shadows the property of TextEdit, whose default it has, so that setting another format is an error.
    readonly property int textFormat: TextEdit.PlainText

    implicitHeight: contentHeight + topPadding + bottomPadding
    font.family: Application.font.family
    color: palette.text
    selectionColor: palette.highlight
    selectedTextColor: palette.highlightedText
    selectByMouse: true
    wrapMode: TextEdit.Wrap
}
