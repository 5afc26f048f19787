#include "OndelAppSupport/SupportNudges.h"

#include "OndelAppSupport/AppIdentity.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace OndelAppSupport {

namespace {

constexpr const char* alreadySupportedKey = "supportAlreadySupported";
constexpr const char* snoozedAtKey = "supportSnoozedAt";

/// A timer does not run while the machine is suspended, so the clock is checked this often. Units: seconds.
constexpr double longestWait = 3600;

/// The settings file stores booleans as words, and users may have edited it.
bool isTrue(const QVariant& value) {
    const QString word = value.toString();
    return word == QLatin1String("true") || word == QLatin1String("1");
}

} // namespace

QUrl SupportNudges::supportURL() { return makerSitePage(QStringLiteral("/support")); }

SupportNudges& SupportNudges::shared() {
    // Never destroyed: views use it until the process ends.
    static auto* const nudges = new SupportNudges(*new QSettings);
    return *nudges;
}

SupportNudges::SupportNudges(QSettings& defaults, std::function<QDateTime()> now, double interval,
                             QObject* parent)
    : QObject(parent)
    , m_defaults(defaults)
    , m_now(std::move(now))
    , m_interval(interval)
    , m_isSupporter(isTrue(defaults.value(QLatin1String(alreadySupportedKey)))) {
    m_wake.setSingleShot(true);
    m_wake.setTimerType(Qt::CoarseTimer);
    connect(&m_wake, &QTimer::timeout, this, &SupportNudges::refresh);
    refresh();
}

void SupportNudges::setSupporter(bool isSupporter) {
    const bool isNew = std::exchange(m_isSupporter, isSupporter) != isSupporter;
    m_defaults.setValue(QLatin1String(alreadySupportedKey), isSupporter);
    m_defaults.sync();
    if (isNew)
        Q_EMIT isSupporterChanged();
    refresh();
}

void SupportNudges::notNow() {
    m_defaults.setValue(QLatin1String(snoozedAtKey), m_now());
    m_defaults.sync();
    refresh();
}

void SupportNudges::openSupportPage(bool fromNote) {
    if (fromNote)
        notNow();
    Q_EMIT pageWanted(supportURL());
}

double SupportNudges::snoozeRemaining() const {
    const QVariant stored = m_defaults.value(QLatin1String(snoozedAtKey));
    const QDateTime snoozedAt =
        stored.metaType() == QMetaType::fromType<QDateTime>() ? stored.toDateTime() : QDateTime();
    return snoozedAt.isValid() ? m_interval - static_cast<double>(snoozedAt.msecsTo(m_now())) / 1000 : 0;
}

void SupportNudges::refresh() {
    m_wake.stop();
    if (m_isSupporter) {
        setShowsNote(false);
        return;
    }
    const double remaining = snoozeRemaining();
    setShowsNote(remaining <= 0);
    if (remaining > 0)
        m_wake.start(
            std::chrono::milliseconds(std::llround(std::ceil(std::min(remaining, longestWait) * 1000))));
}

void SupportNudges::setShowsNote(bool showsNote) {
    if (std::exchange(m_showsNote, showsNote) != showsNote)
        Q_EMIT showsNoteChanged();
}

} // namespace OndelAppSupport
