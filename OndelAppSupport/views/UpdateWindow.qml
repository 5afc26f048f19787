pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import OndelAppSupport.views

/// The window for software updates. The state of the updater opens and closes it.
PanelWindow {
    id: window

    required property UpdaterController updater
    readonly property int state: updater.state

    title: qsTr("Software Update")
    wantedWidth: Math.max(Metrics.scaled(520), buttons.implicitWidth + icon.sourceSize.width + page.spacing + 2 * Metrics.sheetMargin)
    wantedHeight: page.implicitHeight + 2 * Metrics.sheetMargin
    visible: state !== UpdaterController.Idle

    onClosing: close => {
        close.accepted = false; // the updater decides
        updater.dismiss();
    }
    onStateChanged: if (visible) takeFocus()
    Component.onCompleted: takeFocus()

    function takeFocus(): void {
        (primary.visible ? primary : secondary).forceActiveFocus();
        // The result of an automatic check must not take the keyboard focus from another window.
        if (updater.state !== UpdaterController.Available && updater.state !== UpdaterController.Asking)
            comeForward();
    }
    function comeForward(): void {
        raise();
        requestActivate();
    }

    Connections {
        target: window.updater

        function onAttentionWanted(): void {
            window.comeForward();
        }
    }
    UpdateWords {
        id: words

        updater: window.updater
    }
    RowLayout {
        id: page

        x: Metrics.sheetMargin
        y: Metrics.sheetMargin
        width: parent.width - 2 * x
        spacing: 16
        LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
        LayoutMirroring.childrenInherit: true

        Image {
            id: icon

            Layout.alignment: Qt.AlignTop
            source: "qrc:/ondel/Icons/tools.ondel.tarnwick.svg"
            sourceSize.width: 56
            sourceSize.height: 56
            Accessible.ignored: true

            Symbol {
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                visible: window.state === UpdaterController.Failed
                name: "exclamationmark.triangle.fill"
                size: 20
                color: OndelBrand.coral
            }
        }
        ColumnLayout {
            spacing: 8

            BodyText {
                Layout.fillWidth: true
                text: words.heading
                font.pixelSize: Metrics.scaled(14)
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }
            BodyText {
                Layout.fillWidth: true
                visible: text !== ""
                text: words.detail
                font.pixelSize: Metrics.captionSize
                Accessible.role: window.state === UpdaterController.Failed ? Accessible.AlertMessage : Accessible.StaticText
            }
            NotesPane {
                Layout.fillWidth: true
                Layout.topMargin: 4
                visible: window.state === UpdaterController.Available && text !== ""
                label: qsTr("Release notes")
                text: window.updater.notes
            }
            ProgressTrack {
                Layout.fillWidth: true
                Layout.topMargin: 4
                visible: window.state === UpdaterController.Loading
                value: window.updater.length > 0 ? window.updater.loaded / window.updater.length : 0
                //: %1 is a sentence (Downloading the update…), %2 how much is done
                label: qsTr("%1 %2 %").arg(words.heading).arg(percent)
            }
            RowLayout {
                id: buttons

                Layout.topMargin: 8
                spacing: 8

                SheetButton {
                    visible: window.state === UpdaterController.Available
                    label: qsTr("Skip This Version")
                    onClicked: window.updater.skipVersion()
                }
                Spinner {
                    visible: window.state === UpdaterController.Checking || window.state === UpdaterController.Verifying
                    color: window.palette.placeholderText
                }
                Item {
                    Layout.fillWidth: true
                }
                SheetButton {
                    id: secondary

                    visible: label !== ""
                    label: words.secondary
                    onClicked: words.act(false)
                }
                SheetButton {
                    id: primary

                    visible: label !== ""
                    prominent: true
                    label: words.primary
                    onClicked: words.act(true)
                }
            }
        }
    }
}
