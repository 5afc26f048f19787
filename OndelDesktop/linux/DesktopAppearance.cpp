#include "OndelDesktop/DesktopAppearance.h"

#include "DesktopInterfaces.h"
#include "OndelDesktop/linux/Portal.h"
#include "OndelDesktop/linux/XSettings.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>

#include <algorithm>
#include <optional>
#include <utility>

namespace OndelDesktop {

namespace {

using SettingGroups = QMap<QString, QVariantMap>;

/// The portal wraps a value in one variant, older ones in two.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

ColorScheme schemeOf(const QVariant& value) {
    switch (value.toUInt()) {
    case 1:
        return ColorScheme::Dark;
    case 2:
        return ColorScheme::Light;
    default:
        return ColorScheme::NoPreference;
    }
}

std::optional<double> scaleOf(const QVariant& value) {
    bool isNumber = false;
    const double scale = value.toDouble(&isNumber);
    return isNumber && scale > 0 ? std::optional(std::clamp(scale, 0.5, 3.0)) : std::nullopt;
}

/// The first group is the portal's own. Not every desktop passes on its contrast in it (GNOME 43 does not),
/// and none its animations.
struct Setting {
    const char* group;
    const char* key;
    void (*take)(DesktopAppearance&, const QVariant&);
};
constexpr Setting settingTable[] = {
    {"org.freedesktop.appearance", "color-scheme",
     [](DesktopAppearance& all, const QVariant& value) { all.scheme = schemeOf(value); }},
    {"org.freedesktop.appearance", "contrast",
     [](DesktopAppearance& all, const QVariant& value) { all.wantsHighContrast = value.toUInt() == 1; }},
    {"org.freedesktop.appearance", "reduced-motion",
     [](DesktopAppearance& all, const QVariant& value) { all.wantsNoMotion = value.toUInt() == 1; }},
    {"org.gnome.desktop.a11y.interface", "high-contrast",
     [](DesktopAppearance& all, const QVariant& value) { all.wantsHighContrast = value.toBool(); }},
    {"org.gnome.desktop.interface", "enable-animations",
     [](DesktopAppearance& all, const QVariant& value) { all.wantsNoMotion = !value.toBool(); }},
    {"org.gnome.desktop.interface", "text-scaling-factor",
     [](DesktopAppearance& all, const QVariant& value) { all.textScale = scaleOf(value); }},
    {"org.kde.kdeglobals.KDE", "AnimationDurationFactor",
     [](DesktopAppearance& all, const QVariant& value) {
         bool isNumber = false;
         all.wantsNoMotion = value.toDouble(&isNumber) <= 0 && isNumber;
     }},
};

/// Returns whether the setting is one of these.
bool take(DesktopAppearance& all, const QString& group, const QString& key, const QVariant& value) {
    for (const Setting& setting : settingTable)
        if (group == QLatin1String(setting.group) && key == QLatin1String(setting.key)) {
            setting.take(all, unwrapped(value));
            return true;
        }
    return false;
}

QStringList groups() {
    QStringList names;
    for (const Setting& setting : settingTable)
        if (const auto name = QString::fromLatin1(setting.group); !names.contains(name))
            names << name;
    return names;
}

/// Desktops without a portal have themes, whose names tell.
void takeTheme(DesktopAppearance& all, const std::string& themeName) {
    const auto name = QString::fromStdString(themeName).toLower();
    if (name.contains(u"dark") || name.contains(u"inverse"))
        all.scheme = ColorScheme::Dark;
    if (name.contains(u"contrast"))
        all.wantsHighContrast = true;
}

} // namespace

struct AppearanceWatch::Listener {
    using Settings = org::freedesktop::portal::Settings;

    explicit Listener(std::function<void(const DesktopAppearance&)> changed);
    void readAll();
    void take(const QDBusPendingCallWatcher& answer);
    void tell();

    std::function<void(const DesktopAppearance&)> changed;
    DesktopAppearance current;
    std::optional<XSettings> theme; ///< once the portal leaves the choice
    Settings settings{portalService, portalPath, QDBusConnection::sessionBus()};
};

AppearanceWatch::Listener::Listener(std::function<void(const DesktopAppearance&)> changed)
    : changed(std::move(changed)) {
    if (!settings.connection().isConnected()) {
        tell();
        return;
    }
    // Without it no signal arrives, unless some plugin of the toolkit registers it by chance.
    qRegisterMetaType<QDBusVariant>();
    QObject::connect(&settings, &Settings::SettingChanged, &settings,
                     [this](const QString& group, const QString& key, const QDBusVariant& value) {
                         if (OndelDesktop::take(current, group, key, value.variant()))
                             tell();
                     });
    readAll();
}

void AppearanceWatch::Listener::readAll() {
    settings.setTimeout(2000); // milliseconds: a later answer would repaint a window in use
    auto* answer =
        new QDBusPendingCallWatcher(settings.asyncCall(QStringLiteral("ReadAll"), groups()), &settings);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &settings, [this, answer] {
        take(*answer);
        answer->deleteLater();
    });
}

void AppearanceWatch::Listener::take(const QDBusPendingCallWatcher& answer) {
    const QDBusMessage reply = answer.reply();
    if (reply.type() == QDBusMessage::ReplyMessage && reply.signature() == u"a{sa{sv}}") {
        const auto all = qdbus_cast<SettingGroups>(reply.arguments().value(0));
        for (auto group = all.begin(); group != all.end(); ++group)
            for (auto setting = group->begin(); setting != group->end(); ++setting)
                OndelDesktop::take(current, group.key(), setting.key(), setting.value());
    }
    tell();
}

void AppearanceWatch::Listener::tell() {
    DesktopAppearance all = current;
    if (all.scheme == ColorScheme::NoPreference) {
        if (!theme && QGuiApplication::platformName() == u"xcb")
            theme.emplace([this] { tell(); });
        if (theme)
            takeTheme(all, theme->themeName());
    }
    changed(all);
}

AppearanceWatch::AppearanceWatch(std::function<void(const DesktopAppearance&)> changed)
    : m_listener(std::make_unique<Listener>(std::move(changed))) {}

AppearanceWatch::~AppearanceWatch() = default;

} // namespace OndelDesktop
