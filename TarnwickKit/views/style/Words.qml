pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick

/// What figures, tests and settings mean, in one sentence each. docs/figures.md says more.
QtObject {
    readonly property string sustained: qsTr("Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.")
    readonly property string bypassCache: qsTr("Has data go past the system’s memory, so that the disk is measured and not the cache.")

    /// `test`: its raw value. "" for an unknown one.
    function ofTest(test: string): string {
        switch (test) {
        case "sequentialWrite":
            return qsTr("Writes one large file from its beginning to its end and flushes it to the disk, as a long copy to this volume does.");
        case "sequentialRead":
            return qsTr("Reads one large file from its beginning to its end, as a long copy from this volume does.");
        case "randomRead":
            return qsTr("Reads blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.");
        case "randomWrite":
            return qsTr("Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.");
        case "fileOps":
            return qsTr("Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.");
        }
        return "";
    }
}
