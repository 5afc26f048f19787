import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import OndelDrawing
import TarnwickKit.views

/// A run's title, which a press turns into a field for another one.
Item {
    id: title

    required property runFacts facts
    property bool isEditing: false

    signal renamed(text: string)

    implicitWidth: isEditing ? 320 : button.implicitWidth
    implicitHeight: Math.max(button.implicitHeight, field.implicitHeight)

    function edit(): void {
        field.text = facts.customTitle;
        isEditing = true;
        field.forceActiveFocus();
    }
    function commit(): void {
        if (!isEditing)
            return;
        const backToTitle = field.activeFocus;
        isEditing = false;
        if (field.text !== facts.customTitle)
            renamed(field.text);
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

            Text {
                Layout.fillWidth: true
                Layout.preferredWidth: Math.ceil(implicitWidth) // layouts round, and half a pixel less cuts a word
                Layout.maximumWidth: Layout.preferredWidth
                text: title.facts.title
                textFormat: Text.PlainText
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
    T.TextField {
        id: field

        width: Math.min(320, title.width)
        implicitHeight: contentHeight
        visible: title.isEditing
        font: Typeface.display(16)
        color: PaletteKey.palette.text
        selectionColor: PaletteKey.palette.tealSoft
        selectedTextColor: PaletteKey.palette.text
        placeholderText: qsTr("Report title")
        placeholderTextColor: PaletteKey.palette.text3
        selectByMouse: true
        Accessible.name: placeholderText
        onAccepted: title.commit()
        onActiveFocusChanged: if (!activeFocus) title.commit()
        Keys.onEscapePressed: {
            text = title.facts.customTitle;
            title.commit();
        }

        Text {
            visible: field.text.length === 0
            text: field.placeholderText
            font: field.font
            color: field.placeholderTextColor
            Accessible.ignored: true
        }
    }
}
