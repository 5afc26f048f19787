pragma ComponentBehavior: Bound

import QtQuick
import OndelAppSupport.views

/// The update window's texts in each state, and the actions of its two buttons.
QtObject {
    id: words

    required property UpdaterController updater
    readonly property string product: updater.product
    //: Sizes: how much of the update has been loaded
    readonly property string loaded: qsTr("%1 of %2").arg(size(updater.loaded)).arg(size(updater.length))

    readonly property string heading: {
        switch (updater.state) {
        case UpdaterController.Asking:
            return qsTr("Check for updates automatically?");
        case UpdaterController.Checking:
            return qsTr("Checking for updates…");
        case UpdaterController.UpToDate:
            return qsTr("You’re up to date");
        case UpdaterController.Available:
            return qsTr("A new version of %1 is available").arg(product);
        case UpdaterController.Loading:
            return qsTr("Downloading the update…");
        case UpdaterController.Verifying:
            return qsTr("Checking the update’s signature…");
        case UpdaterController.Opened:
            return qsTr("The update is ready to install");
        case UpdaterController.Failed:
            return updater.newVersion === "" ? qsTr("Couldn’t check for updates") : qsTr("Couldn’t get the update");
        }
        return "";
    }
    readonly property string detail: {
        switch (updater.state) {
        case UpdaterController.Asking:
            return qsTr("%1 can look for a new version about once a day. It sends nothing about you or your disks, and asks before it downloads anything.").arg(product);
        case UpdaterController.UpToDate:
            return qsTr("%1 %2 is the newest version.").arg(product).arg(updater.currentVersion);
        case UpdaterController.Available:
            return qsTr("You have %1. The download of %2 takes %3.").arg(updater.currentVersion).arg(updater.newVersion).arg(size(updater.length));
        case UpdaterController.Loading:
            return loaded;
        case UpdaterController.Opened:
            return qsTr("%1 %2 is signed by its maker. Your system’s software installer goes on from here.").arg(product).arg(updater.newVersion);
        case UpdaterController.Failed:
            return updater.failure;
        }
        return "";
    }
    readonly property string primary: {
        switch (updater.state) {
        case UpdaterController.Asking:
            return qsTr("Check Automatically");
        case UpdaterController.Available:
            return qsTr("Install Update");
        case UpdaterController.UpToDate:
        case UpdaterController.Opened:
        case UpdaterController.Failed:
            return qsTr("OK");
        }
        return "";
    }
    readonly property string secondary: {
        switch (updater.state) {
        case UpdaterController.Asking:
            return qsTr("Don’t Check");
        case UpdaterController.Available:
            return qsTr("Remind Me Later");
        case UpdaterController.Checking:
        case UpdaterController.Loading:
        case UpdaterController.Verifying:
            return qsTr("Cancel");
        }
        return "";
    }

    function size(bytes: real): string {
        return Qt.locale().formattedDataSize(bytes, 1, Locale.DataSizeSIFormat);
    }

    function act(isPrimary: bool): void {
        if (updater.state === UpdaterController.Asking)
            updater.allowAutomaticChecks(isPrimary);
        else if (updater.state === UpdaterController.Available && isPrimary)
            updater.install();
        else
            updater.dismiss();
    }
}
