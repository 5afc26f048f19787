pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// An editor for several lines of text. Tab moves the focus, Return starts a new line, Ctrl+Return emits `confirmed`.
FocusScope {
    id: editor

    property alias text: area.text
    required property string label
    required property string prompt

    signal confirmed

    implicitWidth: 200
    implicitHeight: Metrics.scaled(116)

    FieldFrame {
        anchors.fill: parent
        focused: area.activeFocus
    }
    Flickable {
        id: pane

        anchors.fill: parent
        anchors.margins: 2
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        T.ScrollBar.vertical: ScrollMark {}
        T.TextArea.flickable: PlainTextArea {
            id: area

            leftPadding: 6
            rightPadding: 12
            topPadding: 5
            bottomPadding: 5
            focus: true
            font.pixelSize: Metrics.textSize
            Accessible.name: editor.label
            Accessible.description: editor.prompt

            Keys.onTabPressed: area.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: area.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            Keys.onReturnPressed: event => editor.enter(event)
            Keys.onEnterPressed: event => editor.enter(event)
        }
    }
    PlainText {
        x: 8
        y: 8
        width: parent.width - 16
        visible: area.length + area.preeditText.length === 0
        text: editor.prompt
        font.pixelSize: Metrics.noteSize
        color: editor.palette.placeholderText
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    function enter(event: KeyEvent): void {
        event.accepted = event.modifiers & Qt.ControlModifier;
        if (event.accepted)
            confirmed();
    }
}
