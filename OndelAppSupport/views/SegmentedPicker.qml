pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// A choice of one among a few options, side by side. Tab focuses the chosen option; the arrow keys choose another.
FocusScope {
    id: picker

    required property list<string> options
    required property string label
    property int current: 0

    signal chosen(index: int)

    implicitWidth: row.implicitWidth + 4
    implicitHeight: Metrics.scaled(26)
    Accessible.role: Accessible.Grouping
    Accessible.name: label
    Keys.onLeftPressed: step(LayoutMirroring.enabled ? 1 : -1)
    Keys.onRightPressed: step(LayoutMirroring.enabled ? -1 : 1)

    Card {
        anchors.fill: parent
        radius: 7
        color: Qt.alpha(picker.palette.windowText, 0.08)
    }
    Row {
        id: row

        x: 2
        y: 2

        Repeater {
            id: segments

            model: picker.options

            T.RadioButton {
                id: segment

                required property int index
                required property string modelData

                text: modelData
                checked: index === picker.current
                focus: checked
                hoverEnabled: true
                width: Math.max(implicitWidth, (picker.width - 4) / picker.options.length)
                height: picker.height - 4
                implicitWidth: words.implicitWidth + 28
                focusPolicy: checked ? Qt.StrongFocus : Qt.NoFocus
                Accessible.name: text
                Accessible.onPressAction: picker.choose(index)
                onCheckedChanged: if (checked) picker.choose(index)

                contentItem: PlainText {
                    id: words

                    text: segment.text
                    font.pixelSize: Metrics.textSize
                    font.weight: segment.checked ? Font.Medium : Font.Normal
                    color: segment.palette.windowText
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    Accessible.ignored: true
                }
                background: Card {
                    visible: segment.checked || segment.hovered
                    radius: 5
                    color: segment.checked ? segment.palette.button : Qt.alpha(segment.palette.windowText, 0.06)
                    outline: segment.checked ? segment.palette.mid : "transparent"
                }
                FocusMark {
                    control: segment
                    corner: 5
                }
            }
        }
    }

    function step(by: int): void {
        choose(Math.max(0, Math.min(options.length - 1, current + by)));
        segments.itemAt(current).forceActiveFocus(Qt.TabFocusReason);
    }
    function choose(index: int): void {
        if (index !== current)
            chosen(index);
    }
}
