pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import OndelAppSupport.views

/// The form for a problem report, and the thanks once it is sent. The host closes it on `dismissed` and creates a new one
/// for the next report.
FocusScope {
    id: view

    property appIdentity app: AppSupport.app

    signal dismissed

    implicitWidth: Metrics.scaled(470)
    implicitHeight: column.implicitHeight + 2 * Metrics.sheetMargin
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Dialog
    Accessible.name: title.text

    Keys.onEscapePressed: dismissed()
    Keys.onReturnPressed: view.proceed()
    Keys.onEnterPressed: view.proceed()

    /// Opens a file for the user to read. A host may replace this function.
    function showDiagnostics(path: string): void {
        AppSupport.openFile(path);
    }
    function proceed(): void {
        if (form.sent)
            dismissed();
        else
            form.send();
    }

    ReportForm {
        id: form

        onChanged: if (sent) done.forceActiveFocus()
    }
    ColumnLayout {
        id: column

        x: Metrics.sheetMargin
        y: Metrics.sheetMargin
        width: parent.width - 2 * x
        spacing: 14

        RowLayout {
            spacing: 8

            Symbol {
                name: "ladybug"
                size: 17
                color: view.palette.windowText
            }
            BodyText {
                id: title

                text: form.sent ? qsTr("Thank You") : qsTr("Report a Problem")
                font.pixelSize: Metrics.titleSize
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }
        }
        ReportFormPage {
            Layout.fillWidth: true
            visible: !form.sent
            form: form
            app: view.app
            onPreviewWritten: path => view.showDiagnostics(path)
        }
        RowLayout {
            visible: form.sent
            spacing: 12

            Symbol {
                name: "checkmark.seal.fill"
                size: 28
                color: view.palette.highlight
            }
            BodyText {
                Layout.fillWidth: true
                text: qsTr("Your report has been filed. Thanks for helping make %1 better.").arg(view.app.shortName)
            }
        }
        GridLayout {
            columns: column.width < 400 ? 1 : 2
            columnSpacing: 8
            rowSpacing: 8

            RowLayout {
                visible: !form.sent
                spacing: 8

                BodyText {
                    secondary: true
                    font.pixelSize: Metrics.noteSize
                    wrapMode: Text.NoWrap
                    text: qsTr("Report on the web:")
                }
                LinkButton {
                    Layout.leftMargin: -4
                    textSize: Metrics.noteSize
                    label: AppSupport.shown(AppSupport.reportPage)
                    onClicked: AppSupport.openPage(AppSupport.reportPage)
                }
            }
            RowLayout {
                spacing: 8

                Item {
                    Layout.fillWidth: true
                }
                Spinner {
                    visible: form.submitting
                    color: view.palette.placeholderText
                }
                SheetButton {
                    visible: !form.sent
                    label: qsTr("Cancel")
                    onClicked: view.dismissed()
                }
                SheetButton {
                    visible: !form.sent
                    prominent: true
                    enabled: form.canSend
                    label: qsTr("Send")
                    onClicked: form.send()
                }
                SheetButton {
                    id: done

                    visible: form.sent
                    prominent: true
                    label: qsTr("Done")
                    onClicked: view.dismissed()
                }
            }
        }
    }
}
