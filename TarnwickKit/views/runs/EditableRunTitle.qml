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
    /// What the field may take. It lies over what stands beside the title, which stays where it is.
    property real room: fieldWidth

    readonly property string advice: qsTr("Rename this report. The name also appears on images you share.")

    signal renamed(text: string)

    z: isEditing ? 1 : 0
    implicitWidth: button.implicitWidth
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
            button.forceActiveFocus(Qt.TabFocusReason); // shows the focus mark
    }

    PlainButton {
        id: button

        y: -verticalPadding
        verticalPadding: Math.max(0, (Metrics.leastTarget - implicitContentHeight) / 2)
        width: Math.min(implicitWidth, title.width)
        visible: !title.isEditing
        label: title.facts.title
        hint: words.truncated ? title.facts.title + "\n" + title.advice : title.advice
        detail: title.advice
        corner: 4
        onClicked: title.edit()

        contentItem: RowLayout {
            RunTitle {
                id: words

                text: title.facts.title
                Accessible.ignored: true
            }
        }

        Symbol { // in the space beside the title, so that nothing moves when it is shown
            anchors.left: parent.right
            anchors.leftMargin: 1
            anchors.verticalCenter: parent.verticalCenter
            name: "pencil"
            size: 11
            color: PaletteKey.palette.text3
            visible: button.hovered || button.visualFocus
        }
    }
    OnDemand {
        active: title.isEditing

        TextLine {
            anchors.left: parent?.left
            anchors.leftMargin: -leftPadding // the text stays where the title was
            leftPadding: 5
            rightPadding: 5
            y: Math.round((title.height - height) / 2)
            width: Math.min(title.fieldWidth, title.room)
            font: Typeface.display(16)
            color: PaletteKey.palette.text
            selectionColor: PaletteKey.palette.accent
            selectedTextColor: PaletteKey.palette.onAccent
            prompt: qsTr("Report title")
            promptColor: PaletteKey.palette.text2
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
