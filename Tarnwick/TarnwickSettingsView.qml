pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelAppSupport.views
import OndelControls
import TarnwickKit.views
import Tarnwick

/// The settings form.
Item {
    id: view

    required property UpdaterModel updater
    required property SupportNudges support

    implicitWidth: Metrics.scaled(440)
    implicitHeight: form.implicitHeight + 40

    LanguageSetting {
        id: language
    }
    ColumnLayout {
        id: form

        anchors.fill: parent
        anchors.margins: 20
        spacing: 20

        SettingsSection {
            title: qsTr("Updates")

            ToggleSwitch {
                Layout.fillWidth: true
                label: qsTr("Check for updates automatically")
                explanation: qsTr("Looks for a new version about once a day and asks before installing it. Off, Tarnwick only checks when you choose Check for Updates.")
                enabled: view.updater.isConfigured
                on: view.updater.automaticallyChecksForUpdates
                onWanted: on => view.updater.automaticallyChecksForUpdates = on
            }
            AlertButton {
                label: qsTr("Check Now")
                enabled: view.updater.canCheckForUpdates
                onClicked: view.updater.checkForUpdates()
            }
            Caption {
                Layout.fillWidth: true
                visible: !view.updater.isConfigured
                text: qsTr("This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.")
            }
        }
        SettingsSection {
            title: qsTr("Language")

            SettingMenu {
                Layout.fillWidth: true
                Layout.leftMargin: -ViewMetrics.sidebarInset
                Layout.rightMargin: -ViewMetrics.sidebarInset
                label: qsTr("Language of the window")
                options: language.names
                current: language.chosen
                onChosen: index => language.chosen = index
            }
            Caption {
                Layout.fillWidth: true
                visible: language.isPending
                text: qsTr("The window follows when Tarnwick is started the next time.")
            }
            ToggleSwitch {
                Layout.fillWidth: true
                label: qsTr("Shared pictures in English")
                explanation: qsTr("Off, their texts are in the language of the window.")
                on: language.englishCards
                onWanted: on => language.englishCards = on
            }
        }
        SettingsSection {
            title: qsTr("Support Tarnwick")

            Caption {
                Layout.fillWidth: true
                text: qsTr("Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.")
            }
            AlertButton {
                label: qsTr("Support on Ko-fi…")
                onClicked: view.support.openSupportPage(false)
            }
            ToggleSwitch {
                Layout.fillWidth: true
                label: qsTr("I’ve already supported Tarnwick")
                explanation: qsTr("Hides the support note at the foot of the sidebar.")
                on: view.support.isSupporter
                onWanted: on => view.support.isSupporter = on
            }
        }
    }
}
