pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

/// The one item for text of several lines that is edited or selected; plain as PlainText is.
T.TextArea {
    /// Hides the format of TextEdit, which is this by default, so that setting another one is an error.
    readonly property int textFormat: TextEdit.PlainText

    implicitHeight: contentHeight + topPadding + bottomPadding
    font.family: Application.font.family
    color: palette.text
    selectionColor: palette.highlight
    selectedTextColor: palette.highlightedText
    selectByMouse: true
    wrapMode: TextEdit.Wrap
}
