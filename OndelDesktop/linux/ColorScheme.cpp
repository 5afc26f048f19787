#include "OndelDesktop/ColorScheme.h"

#include "OndelDesktop/linux/ColorSchemePortal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <chrono>

namespace OndelDesktop {

namespace {

const auto settingsService = QStringLiteral("org.freedesktop.portal.Desktop");
const auto settingsPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const auto appearance = QStringLiteral("org.freedesktop.appearance");
const auto colorScheme = QStringLiteral("color-scheme");

/// A portal that must first be started may take its time, one that hangs is given up.
constexpr std::chrono::milliseconds settingsPatience = std::chrono::seconds(2);

/// The portal wraps its answer in one variant, older ones in two.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

ColorScheme schemeOf(const QVariant& value) {
    switch (unwrapped(value).toUInt()) {
    case 1:
        return ColorScheme::Dark;
    case 2:
        return ColorScheme::Light;
    default:
        return ColorScheme::NoPreference;
    }
}

} // namespace

ColorSchemePortal::ColorSchemePortal(std::function<void(ColorScheme)> changed)
    : m_changed(std::move(changed)) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    qRegisterMetaType<QDBusVariant>(); // else the connection below is refused
    const bool listening =
        bus.connect(settingsService, settingsPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                    SLOT(settingChanged(QString, QString, QDBusVariant)));
    Q_ASSERT(listening);
    Q_UNUSED(listening)
    ask();
}

void ColorSchemePortal::ask() {
    auto question = QDBusMessage::createMethodCall(settingsService, settingsPath, settingsInterface,
                                                   QStringLiteral("Read"));
    question << appearance << colorScheme;
    auto* answer = new QDBusPendingCallWatcher(
        QDBusConnection::sessionBus().asyncCall(question, static_cast<int>(settingsPatience.count())), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid())
            m_changed(schemeOf(reply.value().variant()));
        answer->deleteLater();
    });
}

void ColorSchemePortal::settingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
    if (group == appearance && key == colorScheme)
        m_changed(schemeOf(value.variant()));
}

struct ColorSchemeWatch::Listener {
    ColorSchemePortal portal;
};

ColorSchemeWatch::ColorSchemeWatch(std::function<void(ColorScheme)> changed)
    : m_listener(new Listener{ColorSchemePortal(std::move(changed))}) {}

ColorSchemeWatch::~ColorSchemeWatch() = default;

} // namespace OndelDesktop
