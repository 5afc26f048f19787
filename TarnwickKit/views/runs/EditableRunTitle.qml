pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A run's title. A press replaces it by a field to edit it.
Item {
    id: title

    required property runFacts facts
    property bool isEditing: false
    readonly property real fieldWidth: 320

    signal renamed(text: string)

    implicitWidth: isEditing ? fieldWidth : button.implicitWidth
    implicitHeight: button.implicitContentHeight

    function edit(): void {
        isEditing = true;
    }
    function commit(draft: string, backToTitle: bool): void {
        if (!isEditing)
            return;
        isEditing = false;
        if (draft !== facts.customTitle)
            renamed(draft);
        if (backToTitle)
            button.forceActiveFocus(Qt.OtherFocusReason);
    }

    PlainButton {
        id: button

        y: -verticalPadding
        verticalPadding: Math.max(0, (Metrics.leastTarget - implicitContentHeight) / 2)
        width: Math.min(implicitWidth, title.width)
        visible: !title.isEditing
        label: title.facts.title
        hint: qsTr("Rename this report. The name also appears on images you share.")
        corner: 4
        onClicked: title.edit()

        contentItem: RowLayout {
            spacing: 6

            RunTitle {
                text: title.facts.title
                Accessible.ignored: true
            }
            Symbol {
                name: "pencil"
                size: 11
                color: PaletteKey.palette.text3
                opacity: button.hovered || button.visualFocus ? 1 : 0
            }
        }
    }
    OnDemand {
        active: title.isEditing

        TextLine {
            width: Math.min(title.fieldWidth, title.width)
            height: title.height
            framed: false
            font: Typeface.display(16)
            color: PaletteKey.palette.text
            selectionColor: PaletteKey.palette.accent
            selectedTextColor: PaletteKey.palette.onAccent
            prompt: qsTr("Report title")
            promptColor: PaletteKey.palette.text3
            Component.onCompleted: {
                text = title.facts.customTitle; // assigned, not bound: a change of the run must not undo what is typed
                forceActiveFocus();
            }
            onAccepted: title.commit(text, true)
            onActiveFocusChanged: if (!activeFocus) title.commit(text, false)
            Keys.onEscapePressed: title.commit(title.facts.customTitle, true)
        }
    }
}
