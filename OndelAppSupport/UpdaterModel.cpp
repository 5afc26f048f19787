#include "OndelAppSupport/UpdaterModel.h"

#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/updates/PackageLoad.h"
#include "OndelCore/logging/Log.h"
#include "OndelCore/platform/process/Sandbox.h"
#include "OndelCore/platform/storage/PrivateFolder.h"

#include <QSysInfo>

#include <utility>

namespace OndelAppSupport {

using namespace std::chrono_literals;
using OndelCore::logging::Log;
using OndelCore::logging::LogField;
using updates::Offer;
using updates::UpdateError;
using Step = updates::UpdateWorker::Step;

namespace {

constexpr auto startDelay = 5s;    // keeps the first check out of the start
constexpr auto checkInterval = 1h; // a suspend or a changed clock delays a check by an hour at most
constexpr auto busyDelay = 1min;
constexpr qint64 secondsOfADay = 86400;

const QString automaticKey = QStringLiteral("updatesCheckAutomatically"); // boolean; absent: never asked
const QString lastCheckKey = QStringLiteral("updatesCheckedAt");          // date
const QString skippedKey = QStringLiteral("updatesSkippedVersion");       // text
const QString startedKey = QStringLiteral("updatesStartedBefore");        // boolean

QString valueOf(const InformationDictionary& build, const char* key) {
    return build.string(QLatin1String(key)).value_or(QString());
}

https::Connection connectionOf(const UpdaterEnvironment& environment) {
    return {.userAgent = AppIdentity::current().shortName.toUtf8(),
            .authorities = environment.authorities,
            .patience = environment.patience};
}

/// Feed and notes may take twice the patience each, and the proxy settings once more.
std::chrono::milliseconds longestSilence(const UpdaterEnvironment& environment) {
    return 5 * environment.patience;
}

bool hasFeedAndKey(const InformationDictionary& build) {
    return !build.string(QStringLiteral("SUPublicEDKey")).value_or(QString()).isEmpty() &&
           !build.string(QStringLiteral("SUFeedURL")).value_or(QString()).isEmpty();
}

} // namespace

UpdaterEnvironment::UpdaterEnvironment()
    : folder(OndelCore::platform::privateTemporaryFolder)
    , platforms{QSysInfo::kernelType(),
                QSysInfo::kernelType() + QLatin1Char('-') + QSysInfo::buildCpuArchitecture()}
    , systemVersion(QSysInfo::kernelVersion()) {
    if (OndelCore::platform::sandbox())
        build = InformationDictionary({}); // without a feed: the store updates the program
}

UpdaterController::UpdaterController(UpdaterEnvironment environment, QObject* parent)
    : QObject(parent)
    , m_environment(std::move(environment)) {
    if (!m_environment.settings)
        qFatal("UpdaterController: the environment has no settings");
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::VeryCoarseTimer);
    connect(&m_timer, &QTimer::timeout, this, &UpdaterController::checkIfDue);
    connect(&m_worker, &updates::UpdateWorker::failed, this, &UpdaterController::fail);
}

QString UpdaterController::product() { return AppIdentity::current().shortName; }

QString UpdaterController::currentVersion() const {
    return valueOf(m_environment.build, "CFBundleShortVersionString");
}

void UpdaterController::start() {
    m_started = true;
    m_timer.start(startDelay);
}

bool UpdaterController::automaticallyChecksForUpdates() const {
    return m_environment.settings->value(automaticKey, false).toBool();
}

void UpdaterController::setAutomaticallyChecksForUpdates(bool checks) {
    const bool before = automaticallyChecksForUpdates();
    m_environment.settings->setValue(automaticKey, checks);
    if (checks == before)
        return;
    Q_EMIT automaticallyChecksForUpdatesChanged();
    if (checks && m_started)
        m_timer.start(startDelay);
}

void UpdaterController::checkForUpdates() {
    if (!canCheckForUpdates())
        return;
    if (m_state != State::Idle && m_state != State::UpToDate && m_state != State::Failed) {
        Q_EMIT attentionWanted();
        return;
    }
    setState(State::Checking);
    if (!m_worker.isWorking()) // else the running automatic check becomes a manual one
        check();
}

void UpdaterController::install() {
    if (m_state == State::Available)
        load();
}

void UpdaterController::skipVersion() {
    if (m_state != State::Available)
        return;
    m_environment.settings->setValue(skippedKey, m_offer->version);
    setState(State::Idle);
}

void UpdaterController::dismiss() {
    if (m_state == State::Available)
        m_environment.settings->remove(skippedKey);
    if (m_state == State::Asking)
        setAutomaticallyChecksForUpdates(false);
    if (m_state == State::Idle) // nothing is shown
        return;
    m_worker.stop();
    setState(State::Idle);
}

void UpdaterController::allowAutomaticChecks(bool allow) {
    if (m_state != State::Asking)
        return;
    setState(State::Idle);
    setAutomaticallyChecksForUpdates(allow);
}

bool UpdaterController::isDue() const {
    const QDateTime last = m_environment.settings->value(lastCheckKey).toDateTime();
    const qint64 since = last.isValid() ? last.secsTo(m_environment.now()) : secondsOfADay;
    return since < 0 || since >= secondsOfADay; // negative: the clock was set back
}

void UpdaterController::checkIfDue() {
    if (!m_started)
        return;
    m_timer.start(checkInterval);
    if (m_worker.isWorking() || m_state != State::Idle)
        return;
    if (m_environment.isBusy()) {
        m_timer.start(busyDelay);
        return;
    }
    QSettings& settings = *m_environment.settings;
    if (!settings.contains(automaticKey) && settings.value(startedKey).toBool())
        setState(State::Asking);
    else if (automaticallyChecksForUpdates() && isDue())
        check();
    settings.setValue(startedKey, true);
}

void UpdaterController::check() {
    m_offer.reset();
    updates::Search search{QUrl(valueOf(m_environment.build, "SUFeedURL"), QUrl::StrictMode),
                           valueOf(m_environment.build, "CFBundleVersion"), m_environment.platforms,
                           m_environment.systemVersion, connectionOf(m_environment)};
    const auto work = [this, search = std::move(search)](const auto&, const std::stop_token& stop) -> Step {
        auto offer = updates::findUpdate(search, stop);
        return [this, offer = std::move(offer)] { checked(offer); };
    };
    m_worker.begin(work, longestSilence(m_environment), UpdateError::Cause::feedUnreachable);
}

void UpdaterController::checked(std::optional<Offer> offer) {
    const bool byHand = m_state == State::Checking;
    QSettings& settings = *m_environment.settings;
    Log::app.notice("update check ended", LogField::bool_("newer", offer.has_value()),
                    LogField::bool_("byHand", byHand));
    if (!byHand && offer && m_environment.isBusy()) { // the next check finds it again
        m_timer.start(busyDelay);
        return;
    }
    settings.setValue(lastCheckKey, m_environment.now());
    const bool shows = offer && (byHand || settings.value(skippedKey).toString() != offer->version);
    m_offer = std::move(offer);
    if (shows)
        setState(State::Available);
    else if (byHand)
        setState(State::UpToDate);
}

void UpdaterController::load() {
    const auto folder = m_environment.folder();
    if (!folder) {
        fail(UpdateError(UpdateError::Cause::notWritable));
        return;
    }
    m_environment.settings->remove(skippedKey);
    m_loaded = 0;
    setState(State::Loading);
    const updates::Destination destination{
        *folder / "update", QByteArray::fromBase64(valueOf(m_environment.build, "SUPublicEDKey").toLatin1())};
    const auto work = [this, offer = *m_offer, destination, connection = connectionOf(m_environment)](
                          const updates::UpdateWorker::Post& post, const std::stop_token& stop) -> Step {
        const auto loaded = [&](qint64 bytes) {
            post([this, bytes] {
                m_loaded = bytes;
                Q_EMIT loadedChanged();
            });
        };
        const auto verifying = [&] { post([this] { setState(State::Verifying); }); };
        const auto package = updates::loadPackage(offer, destination, connection, {loaded, verifying}, stop);
        return [this, package] { open(package); };
    };
    m_worker.begin(work, longestSilence(m_environment), UpdateError::Cause::packageUnreachable);
}

void UpdaterController::open(const std::filesystem::path& package) {
    Log::app.notice("update loaded", LogField::bytes("bytes", m_loaded));
    if (m_environment.openPackage(QUrl::fromLocalFile(QString::fromStdString(package.string()))))
        setState(State::Opened);
    else
        fail(UpdateError(UpdateError::Cause::notOpened));
}

void UpdaterController::fail(const UpdateError& error) {
    Log::app.notice("no update", LogField::failure(error));
    if (m_state == State::Idle) // an automatic check fails silently
        return;
    m_failure = error.description(product());
    setState(State::Failed);
}

void UpdaterController::setState(State state) {
    m_state = state;
    if (state != State::Failed)
        m_failure.clear();
    Q_EMIT stateChanged();
}

UpdaterModel::UpdaterModel(UpdaterEnvironment environment, QObject* parent)
    : QObject(parent)
    , m_isConfigured(hasFeedAndKey(environment.build))
    , m_controller(std::move(environment)) {
    connect(&m_controller, &UpdaterController::automaticallyChecksForUpdatesChanged, this,
            &UpdaterModel::automaticallyChecksForUpdatesChanged);
    if (!m_isConfigured)
        return;
    m_controller.start();
    m_canCheckForUpdates = m_controller.canCheckForUpdates();
    connect(&m_controller, &UpdaterController::stateChanged, this, [this] {
        if (std::exchange(m_canCheckForUpdates, m_controller.canCheckForUpdates()) != m_canCheckForUpdates)
            Q_EMIT canCheckForUpdatesChanged();
    });
}

} // namespace OndelAppSupport
