pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import OndelControls
import TarnwickKit.views

/// A question over the whole window. Escape and the first button change nothing.
BaseSheet {
    id: alert

    required property string title
    property string message: ""
    required property string cancelText
    required property string acceptText
    property bool destructive: false

    signal accepted

    width: Math.min(ViewMetrics.alertWidth, (T.Overlay.overlay?.width ?? Infinity) - 2 * Metrics.menuMargin)
    padding: 22
    fill: PaletteKey.palette.panel
    outline: PaletteKey.palette.border
    shadowColor: PaletteKey.palette.shadow
    onOpened: cancel.forceActiveFocus(Qt.TabFocusReason)

    contentItem: ColumnLayout {
        spacing: 10
        Accessible.role: Accessible.AlertMessage
        Accessible.name: alert.title
        Accessible.description: alert.message

        PlainText {
            Layout.fillWidth: true
            text: alert.title
            font: Typeface.display(16)
            color: PaletteKey.palette.text
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        PlainText {
            Layout.fillWidth: true
            visible: alert.message.length > 0
            text: alert.message
            font: Typeface.text(13)
            color: PaletteKey.palette.text2
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        RowLayout {
            Layout.topMargin: 8
            Layout.alignment: Qt.AlignRight
            spacing: 10

            AlertButton {
                id: cancel

                label: alert.cancelText
                onClicked: alert.close()
            }
            AlertButton {
                label: alert.acceptText
                prominent: true
                destructive: alert.destructive
                onClicked: {
                    alert.close();
                    alert.accepted();
                }
            }
        }
    }
}
