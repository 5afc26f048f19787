pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// A longer text to be read and copied, but not changed. The arrow keys scroll it.
FocusScope {
    id: pane

    property alias text: area.text
    required property string label

    implicitWidth: 200
    implicitHeight: Math.min(200, area.implicitHeight + 4)

    Card {
        anchors.fill: parent
        radius: 6
        color: pane.palette.base
        outline: area.activeFocus ? pane.palette.highlight : pane.palette.mid
        outlineWidth: area.activeFocus ? 2 : 1
    }
    Flickable {
        id: page

        anchors.fill: parent
        anchors.margins: 2
        clip: true
        contentWidth: width
        contentHeight: area.implicitHeight
        boundsBehavior: Flickable.StopAtBounds

        T.ScrollBar.vertical: T.ScrollBar {
            id: bar

            implicitWidth: 8
            padding: 2
            visible: size < 1
            contentItem: Card {
                radius: 2
                color: pane.palette.placeholderText
                opacity: bar.active ? 0.7 : 0.35
            }
        }
        PlainTextArea {
            id: area

            width: page.width
            leftPadding: 8
            rightPadding: 12
            topPadding: 6
            bottomPadding: 6
            focus: true
            activeFocusOnTab: true
            readOnly: true
            font.pixelSize: 12
            font.hintingPreference: Font.PreferNoHinting
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            Accessible.description: pane.label

            Keys.onUpPressed: page.contentY = Math.max(0, page.contentY - 20)
            Keys.onDownPressed: page.contentY = Math.max(0, Math.min(page.contentHeight - page.height, page.contentY + 20))
        }
    }
}
