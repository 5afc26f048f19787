#pragma once

#include "OndelAppSupport/InformationDictionary.h"

#include <QDateTime>
#include <QSettings>
#include <QStringList>
#include <QUrl>

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>

namespace OndelAppSupport {

/// What updates need from around them. The application hands in `settings`, `openPackage` and `isBusy`; the
/// rest is another's only in tests.
struct UpdaterEnvironment {
    /// Where the user's choices and the time of the last check are kept. Owner: the caller; it outlives the
    /// updater.
    QSettings* settings = nullptr;
    /// Opens a package with the desktop's installer. Fails: false when nothing takes it.
    /// Threads: called on the updater's; it must not wait for the installer.
    std::function<bool(const QUrl& package)> openPackage = [](const QUrl&) { return false; };
    /// While true nothing is checked unasked, so that no window comes up in the middle of something and no
    /// traffic disturbs a measurement.
    std::function<bool()> isBusy = [] { return false; };

    InformationDictionary build = InformationDictionary::main();
    /// The wall clock. It may jump.
    std::function<QDateTime()> now = [] { return QDateTime::currentDateTimeUtc(); };
    /// Where packages are put: a folder that only this user can enter. Absent: none can be made.
    std::function<std::optional<std::filesystem::path>()> folder;
    /// The words by which a feed may call this system.
    QStringList platforms;
    /// What a feed's least system version is compared with.
    QString systemVersion;
    /// Certificates of those who vouch for servers, in PEM. Absent: the system's.
    std::optional<QByteArray> authorities;
    /// How long a server may say nothing.
    std::chrono::milliseconds patience = std::chrono::seconds(30);

    UpdaterEnvironment();
};

} // namespace OndelAppSupport
