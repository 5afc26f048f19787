#pragma once

#include "OndelAppSupport/InformationDictionary.h"
#include "OndelAppSupport/updates/Appcast.h"
#include "OndelAppSupport/updates/UpdateWorker.h"

#include <QDateTime>
#include <QObject>
#include <QSettings>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>

namespace OndelAppSupport {

/// What the updater depends on. The application sets `settings`, `openPackage` and `isBusy`; only tests
/// change the rest.
struct UpdaterEnvironment {
    /// Stores the user's choices and the time of the last check. Owner: the caller; outlives the updater.
    QSettings* settings = nullptr;
    /// Opens a package with the desktop's installer. Fails: false when no program takes it.
    /// Threads: the updater's; must not wait for the installer.
    std::function<bool(const QUrl& package)> openPackage = [](const QUrl&) { return false; };
    /// While true there are no automatic checks, so that neither a window nor network traffic disturbs a
    /// measurement.
    std::function<bool()> isBusy = [] { return false; };

    InformationDictionary build = InformationDictionary::main();
    /// The wall clock. It may jump.
    std::function<QDateTime()> now = [] { return QDateTime::currentDateTimeUtc(); };
    /// The folder for packages, accessible to this user alone. Absent: none can be created.
    std::function<std::optional<std::filesystem::path>()> folder;
    /// The names of this system in a feed.
    QStringList platforms;
    /// Compared with a feed's minimum system version.
    QString systemVersion;
    /// Certificates of the trusted authorities, in PEM. Absent: the system's.
    std::optional<QByteArray> authorities;
    /// How long a server may be silent.
    std::chrono::milliseconds patience = std::chrono::seconds(30);

    UpdaterEnvironment();
};

/// One update at a time, from the feed to the desktop's installer, and the state of the update window. It
/// executes nothing itself and downloads no package before the user agrees. Threads: main, with an event
/// loop; a thread of its own does network, disk and signature. Owner: that thread. The destructor stops the
/// work, removes partial downloads and does not wait for a thread that hangs.
class UpdaterController : public QObject {
    Q_OBJECT

public:
    /// QML requires names that begin with a capital.
    enum class State {
        Idle,      ///< nothing to show; an automatic check may be under way
        Asking,    ///< for permission to check automatically: once, at the second start
        Checking,  ///< a manual check
        UpToDate,  ///< the result of a manual check
        Available, ///< offers to install
        Loading,
        Verifying,
        Opened, ///< the desktop's installer has the package
        Failed, ///< the result of a manual action
    };
    Q_ENUM(State)

    explicit UpdaterController(UpdaterEnvironment environment, QObject* parent = nullptr);

    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    State state() const { return m_state; }
    Q_SIGNAL void stateChanged();

    // --- What the window shows

    /// The product's name and its short version.
    Q_PROPERTY(QString product READ product CONSTANT)
    static QString product();
    Q_PROPERTY(QString currentVersion READ currentVersion CONSTANT)
    QString currentVersion() const;
    /// Of the update; "" without one.
    Q_PROPERTY(QString newVersion READ newVersion NOTIFY stateChanged)
    QString newVersion() const { return m_offer ? m_offer->shortVersion : QString(); }
    /// Plain text.
    Q_PROPERTY(QString notes READ notes NOTIFY stateChanged)
    QString notes() const { return m_offer ? m_offer->notes : QString(); }
    /// One sentence while Failed, else "".
    Q_PROPERTY(QString failure READ failure NOTIFY stateChanged)
    QString failure() const { return m_failure; }
    /// Units: bytes.
    Q_PROPERTY(double length READ length NOTIFY stateChanged)
    double length() const { return m_offer ? static_cast<double>(m_offer->length) : 0; }
    Q_PROPERTY(double loaded READ loaded NOTIFY loadedChanged)
    double loaded() const { return static_cast<double>(m_loaded); }
    Q_SIGNAL void loadedChanged();
    /// The user requested what the window shows already.
    Q_SIGNAL void attentionWanted();

    // --- What the user can do

    /// A manual check. While an update is shown it only emits attentionWanted.
    Q_INVOKABLE void checkForUpdates();
    /// While Available: downloads the package, verifies it and opens it with the desktop's installer.
    Q_INVOKABLE void install();
    /// While Available: automatic checks ignore this version from now on.
    Q_INVOKABLE void skipVersion();
    /// Closes the window and stops its work. A later check offers an available update again.
    Q_INVOKABLE void dismiss();
    /// While Asking: the answer.
    Q_INVOKABLE void allowAutomaticChecks(bool allow);

    // --- Automatic checks

    /// Starts automatic checks. Without this call no server is ever contacted.
    void start();
    /// Checks for an update if the user allows it and the last check is a day ago. A timer calls it after the
    /// start and then every hour.
    void checkIfDue();

    /// Whether work is under way, shown or not.
    bool isWorking() const { return m_worker.isWorking(); }
    bool canCheckForUpdates() const { return m_started && m_state != State::Checking; }

    bool automaticallyChecksForUpdates() const;
    void setAutomaticallyChecksForUpdates(bool checks);
    Q_SIGNAL void automaticallyChecksForUpdatesChanged();

private:
    bool isDue() const;
    void setState(State state);
    void check();
    void checked(std::optional<updates::Offer> offer);
    void load();
    void open(const std::filesystem::path& package);
    void fail(const updates::UpdateError& error);

    UpdaterEnvironment m_environment;
    QTimer m_timer;
    State m_state = State::Idle;
    QString m_failure;
    std::optional<updates::Offer> m_offer;
    qint64 m_loaded = 0;
    bool m_started = false;
    updates::UpdateWorker m_worker; ///< last, so that it is destroyed first
};

/// Updates as menus and settings see them. A build without "SUFeedURL" or "SUPublicEDKey" is not configured:
/// it never contacts a server.
/// Threads: main, with an event loop. Fails: never; the update window shows errors.
class UpdaterModel : public QObject {
    Q_OBJECT

public:
    explicit UpdaterModel(UpdaterEnvironment environment, QObject* parent = nullptr);

    /// What the update window is bound to.
    Q_PROPERTY(OndelAppSupport::UpdaterController* controller READ controller CONSTANT)
    UpdaterController* controller() { return &m_controller; }

    /// Whether the user can check now: false in a build that is not configured and during a manual check.
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates NOTIFY canCheckForUpdatesChanged)
    bool canCheckForUpdates() const { return m_canCheckForUpdates; }
    Q_SIGNAL void canCheckForUpdatesChanged();

    Q_PROPERTY(bool isConfigured READ isConfigured CONSTANT)
    bool isConfigured() const { return m_isConfigured; }

    /// Whether to check about once a day. Stored in the settings.
    Q_PROPERTY(bool automaticallyChecksForUpdates READ automaticallyChecksForUpdates WRITE
                   setAutomaticallyChecksForUpdates NOTIFY automaticallyChecksForUpdatesChanged)
    bool automaticallyChecksForUpdates() const { return m_controller.automaticallyChecksForUpdates(); }
    void setAutomaticallyChecksForUpdates(bool checks) {
        m_controller.setAutomaticallyChecksForUpdates(checks);
    }
    Q_SIGNAL void automaticallyChecksForUpdatesChanged();

    /// A manual check: opens the update window, or raises an open one.
    Q_INVOKABLE void checkForUpdates() { m_controller.checkForUpdates(); }

private:
    const bool m_isConfigured;
    bool m_canCheckForUpdates = false;
    UpdaterController m_controller;
};

} // namespace OndelAppSupport
