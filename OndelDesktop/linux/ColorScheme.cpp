#include "OndelDesktop/ColorScheme.h"

#include "DesktopInterfaces.h"
#include "OndelDesktop/linux/Portal.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace OndelDesktop {

namespace {

const auto appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const auto colorSchemeKey = QStringLiteral("color-scheme");

/// The portal wraps its answer in one variant, older ones in two.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

ColorScheme schemeOf(const QDBusVariant& value) {
    switch (unwrapped(value.variant()).toUInt()) {
    case 1:
        return ColorScheme::Dark;
    case 2:
        return ColorScheme::Light;
    default:
        return ColorScheme::NoPreference;
    }
}

} // namespace

struct ColorSchemeWatch::Listener {
    using Settings = org::freedesktop::portal::Settings;

    explicit Listener(std::function<void(ColorScheme)> changed);

    Settings settings{portalService, portalPath, QDBusConnection::sessionBus()};
};

ColorSchemeWatch::Listener::Listener(std::function<void(ColorScheme)> changed) {
    if (!settings.connection().isConnected())
        return;
    QObject::connect(&settings, &Settings::SettingChanged, &settings,
                     [changed](const QString& group, const QString& key, const QDBusVariant& value) {
                         if (group == appearanceGroup && key == colorSchemeKey)
                             changed(schemeOf(value));
                     });
    settings.setTimeout(2000); // milliseconds: a later answer would repaint a window in use
    auto* answer = new QDBusPendingCallWatcher(settings.Read(appearanceGroup, colorSchemeKey), &settings);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &settings,
                     [answer, changed = std::move(changed)] {
                         const QDBusPendingReply<QDBusVariant> reply = *answer;
                         if (reply.isValid())
                             changed(schemeOf(reply.value()));
                         answer->deleteLater();
                     });
}

ColorSchemeWatch::ColorSchemeWatch(std::function<void(ColorScheme)> changed)
    : m_listener(std::make_unique<Listener>(std::move(changed))) {}

ColorSchemeWatch::~ColorSchemeWatch() = default;

} // namespace OndelDesktop
