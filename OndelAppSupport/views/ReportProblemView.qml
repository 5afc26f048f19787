import QtQuick
import OndelAppSupport.views

/// The sheet in which the user writes a report. Whoever shows it closes it when it is dismissed, and makes a new one for
/// the next report.
FocusScope {
    id: view

    property appIdentity app: AppSupport.app
    property var showDiagnostics: path => AppSupport.openFile(path)

    signal dismissed

    implicitWidth: 470
    implicitHeight: 300

    ReportForm {
        id: form
    }
}
