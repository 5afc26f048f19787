pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import OndelControls
import TarnwickKit.views

/// A run's title, which a press turns into a field for another one.
Item {
    id: title

    required property runFacts facts
    property bool isEditing: false

    signal renamed(text: string)

    implicitWidth: isEditing ? 320 : button.implicitWidth
    implicitHeight: button.implicitHeight

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

        width: Math.min(implicitWidth, title.width)
        visible: !title.isEditing
        label: title.facts.title
        hint: qsTr("Rename this report. The name also appears on images you share.")
        corner: 4
        onClicked: title.edit()

        contentItem: RowLayout {
            spacing: 6

            PlainText {
                Layout.fillWidth: true
                Layout.preferredWidth: Math.ceil(implicitWidth) // layouts round, and half a pixel less cuts a word
                Layout.maximumWidth: Layout.preferredWidth
                text: title.facts.title
                horizontalAlignment: Text.AlignLeft
                font: Typeface.display(16)
                color: PaletteKey.palette.text
                elide: Text.ElideRight
                maximumLineCount: 1
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

        T.TextField {
            id: field

            width: Math.min(320, title.width)
            height: title.height
            font: Typeface.display(16)
            color: PaletteKey.palette.text
            selectionColor: PaletteKey.palette.tealSoft
            selectedTextColor: PaletteKey.palette.text
            placeholderText: qsTr("Report title")
            placeholderTextColor: PaletteKey.palette.text3
            selectByMouse: true
            Accessible.name: placeholderText
            Component.onCompleted: {
                text = title.facts.customTitle; // once: what is typed is not to be taken back
                forceActiveFocus();
            }
            onAccepted: title.commit(text, true)
            onActiveFocusChanged: if (!activeFocus) title.commit(text, false)
            Keys.onEscapePressed: title.commit(title.facts.customTitle, true)

            PlainText {
                visible: field.text.length === 0
                text: field.placeholderText
                font: field.font
                color: field.placeholderTextColor
                Accessible.ignored: true
            }
        }
    }
}
