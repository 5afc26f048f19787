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

/// One update at a time, from the look into the feed to the desktop's installer, and what its window shows.
/// It never runs anything itself, and loads no package before the user said so. Threads: main, with an event
/// loop; the network, the disk and the signature are left to a thread of its own. Owner: that thread. The
/// destructor ends what goes on; nothing half loaded stays, and nothing that hangs is waited for.
class UpdaterController : public QObject {
    Q_OBJECT

public:
    /// A declarative view only sees names that begin with a capital.
    enum class State {
        Idle,      ///< nothing to show; an automatic check may be under way
        Asking,    ///< whether it may check by itself: once, at the second start
        Checking,  ///< by the user's hand
        UpToDate,  ///< told after a check by the user's hand
        Available, ///< asks whether to install
        Loading,
        Verifying,
        Opened, ///< the desktop's installer has the package
        Failed, ///< told after what the user asked for
    };
    Q_ENUM(State)

    explicit UpdaterController(UpdaterEnvironment environment, QObject* parent = nullptr);

    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    State state() const { return m_state; }
    Q_SIGNAL void stateChanged();

    // --- What there is to show

    /// The product, and its version as people read it.
    Q_PROPERTY(QString product READ product CONSTANT)
    static QString product();
    Q_PROPERTY(QString currentVersion READ currentVersion CONSTANT)
    QString currentVersion() const;
    /// Of the update, while there is one; else "".
    Q_PROPERTY(QString newVersion READ newVersion NOTIFY stateChanged)
    QString newVersion() const { return m_offer ? m_offer->shortVersion : QString(); }
    /// Plain text.
    Q_PROPERTY(QString notes READ notes NOTIFY stateChanged)
    QString notes() const { return m_offer ? m_offer->notes : QString(); }
    /// One sentence; "" but when Failed.
    Q_PROPERTY(QString failure READ failure NOTIFY stateChanged)
    QString failure() const { return m_failure; }
    /// Units: bytes.
    Q_PROPERTY(double length READ length NOTIFY stateChanged)
    double length() const { return m_offer ? static_cast<double>(m_offer->length) : 0; }
    Q_PROPERTY(double loaded READ loaded NOTIFY loadedChanged)
    double loaded() const { return static_cast<double>(m_loaded); }
    Q_SIGNAL void loadedChanged();
    /// The user asked again for what is shown already.
    Q_SIGNAL void attentionWanted();

    // --- What the user may do

    /// A check by the user's hand. While an update is shown it only calls for attention.
    Q_INVOKABLE void checkForUpdates();
    /// While Available: loads the package, proves it and hands it to the desktop's installer.
    Q_INVOKABLE void install();
    /// While Available: automatic checks are silent about this version from now on.
    Q_INVOKABLE void skipVersion();
    /// Puts away what is shown, ending what goes on. An available update comes again with a later check.
    Q_INVOKABLE void dismiss();
    /// While Asking: the answer.
    Q_INVOKABLE void allowAutomaticChecks(bool allow);

    // --- When it looks by itself

    /// Begins to look for updates. Without it nobody is ever contacted.
    void start();
    /// Looks for an update if the user allows it and a day has gone by since the last look. Called by itself
    /// after a start and from then on every hour.
    void checkIfDue();

    /// Whether anything goes on, also unseen.
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
    updates::UpdateWorker m_worker; ///< last: it ends before anything above goes
};

/// Updates as menus and settings see them. A build without a feed's address and a key ("SUFeedURL",
/// "SUPublicEDKey") is not configured: it never contacts anybody.
/// Threads: main, with an event loop. Fails: never; what goes wrong in a check is told in the update window.
class UpdaterModel : public QObject {
    Q_OBJECT

public:
    explicit UpdaterModel(UpdaterEnvironment environment, QObject* parent = nullptr);

    /// What the update window is bound to.
    Q_PROPERTY(OndelAppSupport::UpdaterController* controller READ controller CONSTANT)
    UpdaterController* controller() { return &m_controller; }

    /// Whether the user can check now: false in a build that is not configured, and while a check that the
    /// user asked for goes on.
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates NOTIFY canCheckForUpdatesChanged)
    bool canCheckForUpdates() const { return m_canCheckForUpdates; }
    Q_SIGNAL void canCheckForUpdatesChanged();

    Q_PROPERTY(bool isConfigured READ isConfigured CONSTANT)
    bool isConfigured() const { return m_isConfigured; }

    /// Whether a new version is looked for about once a day. Kept in the settings.
    Q_PROPERTY(bool automaticallyChecksForUpdates READ automaticallyChecksForUpdates WRITE
                   setAutomaticallyChecksForUpdates NOTIFY automaticallyChecksForUpdatesChanged)
    bool automaticallyChecksForUpdates() const { return m_controller.automaticallyChecksForUpdates(); }
    void setAutomaticallyChecksForUpdates(bool checks) {
        m_controller.setAutomaticallyChecksForUpdates(checks);
    }
    Q_SIGNAL void automaticallyChecksForUpdatesChanged();

    /// Checks by the user's hand: opens the update window, or asks an open one to come to the front.
    Q_INVOKABLE void checkForUpdates() { m_controller.checkForUpdates(); }

private:
    const bool m_isConfigured;
    bool m_canCheckForUpdates = false;
    UpdaterController m_controller;
};

} // namespace OndelAppSupport
