pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// A read-only text that can be selected and copied. The arrow keys scroll it.
FocusScope {
    id: pane

    property alias text: area.text
    required property string label

    implicitWidth: 200
    implicitHeight: Math.min(200, area.implicitHeight + 4)

    FieldFrame {
        anchors.fill: parent
        focused: area.activeFocus
    }
    Flickable {
        id: page

        anchors.fill: parent
        anchors.margins: 2
        clip: true
        contentWidth: width
        contentHeight: area.implicitHeight
        boundsBehavior: Flickable.StopAtBounds

        T.ScrollBar.vertical: ScrollMark {}
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
            font.pixelSize: Metrics.captionSize
            font.hintingPreference: Font.PreferNoHinting
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            Accessible.description: pane.label

            Keys.onUpPressed: page.contentY = Math.max(0, page.contentY - Metrics.textScrollStep)
            Keys.onDownPressed: page.contentY = Math.max(0, Math.min(page.contentHeight - page.height, page.contentY + Metrics.textScrollStep))
        }
    }
}
