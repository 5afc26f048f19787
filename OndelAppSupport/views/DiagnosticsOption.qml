pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import OndelAppSupport.views

/// The choice to attach the log to a report, and the way to read it first.
Column {
    id: option

    required property ReportForm form

    /// The preview was written to this file and should be shown.
    signal previewWritten(path: string)

    spacing: 4

    CheckRow {
        anchors.left: parent.left
        text: qsTr("Attach diagnostics")
        checked: option.form.attachDiagnostics
        onCheckedChanged: option.form.attachDiagnostics = checked
    }
    BodyText {
        anchors.left: parent.left
        anchors.leftMargin: Metrics.checkIndent
        anchors.right: parent.right
        secondary: true
        font.pixelSize: Metrics.noteSize
        text: qsTr("Recent activity from this session. File names, servers and accounts are replaced with anonymous tokens before anything is written down.")
    }
    LinkButton {
        anchors.left: parent.left
        anchors.leftMargin: Metrics.checkIndent
        textSize: Metrics.noteSize
        label: qsTr("View…")
        onClicked: {
            const path = option.form.writePreview();
            if (path.length > 0)
                option.previewWritten(path);
        }
    }
}
