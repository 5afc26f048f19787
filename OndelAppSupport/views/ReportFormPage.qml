pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import OndelAppSupport.views

/// The fields of a report.
ColumnLayout {
    id: page

    required property ReportForm form
    required property appIdentity app

    signal previewWritten(path: string)

    spacing: 10

    SegmentedPicker {
        Layout.fillWidth: true
        label: qsTr("Kind of report")
        options: [qsTr("Bug"), qsTr("Feature request")]
        current: page.form.isFeature ? 1 : 0
        onChosen: index => page.form.isFeature = index === 1
    }
    TextLine {
        Layout.fillWidth: true
        focus: true
        prompt: qsTr("Summary — a one-line description")
        text: page.form.summary
        onTextChanged: page.form.summary = text
    }
    TextBlock {
        Layout.fillWidth: true
        label: qsTr("Details")
        prompt: page.form.isFeature ? qsTr("What would you like %1 to do?").arg(page.app.shortName)
                                    : qsTr("What happened? Steps to reproduce, and what you expected.")
        text: page.form.details
        onTextChanged: page.form.details = text
        onConfirmed: page.form.send()
    }
    TextLine {
        Layout.fillWidth: true
        prompt: qsTr("Email — optional, if you’d like us to get back to you")
        text: page.form.email
        onTextChanged: page.form.email = text
    }
    RowLayout {
        spacing: 6

        Symbol {
            Layout.alignment: Qt.AlignTop
            name: "info.circle"
            size: 10
            color: page.palette.placeholderText
        }
        BodyText {
            Layout.fillWidth: true
            secondary: true
            font.pixelSize: Metrics.noteSize
            //: %1 is the program, %2 its version, %3 the system, %4 the machine
            text: qsTr("%1 %2 · %3 · %4 will be attached.")
                .arg(page.app.name).arg(AppSupport.appVersion).arg(AppSupport.osVersion).arg(AppSupport.hardwareModel)
        }
    }
    DiagnosticsOption {
        Layout.fillWidth: true
        visible: !page.form.isFeature
        form: page.form
        onPreviewWritten: path => page.previewWritten(path)
    }
    RowLayout {
        visible: page.form.failed
        spacing: 6

        Symbol {
            Layout.alignment: Qt.AlignTop
            name: "exclamationmark.triangle.fill"
            size: 13
            color: OndelBrand.coral
        }
        BodyText {
            Layout.fillWidth: true
            text: page.form.errorText
            font.pixelSize: Metrics.captionSize
            maximumLineCount: 6 // a server writes it, at any length
            elide: Text.ElideRight
            Accessible.role: Accessible.AlertMessage
        }
    }
}
