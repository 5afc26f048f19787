#include "TarnwickKit/views/window/Appearance.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
#include <QScreen>

#include <cmath>
#include <utility>

namespace TarnwickKit::views {

using OndelDesktop::ColorScheme;

namespace {

constexpr auto darkKey = "TarnwickLastDark";
constexpr auto contrastKey = "TarnwickLastContrast";
constexpr auto textScaleKey = "TarnwickLastTextScale";
constexpr double usualResolution = 96; // dots per inch

bool platformLooksDark() {
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

} // namespace

double textScaleOn(const ScreenScale& screen, std::optional<double> wanted) {
    const bool isApplied = screen.hasTextScale && std::abs(screen.applied * screen.left - 1) > 0.01;
    return isApplied ? screen.left : wanted.value_or(screen.left);
}

/// QT_SCALE_FACTOR enlarges everything on top of what the screen asks for.
ScreenScale Appearance::screenScale() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return {};
    bool isSet = false;
    const double byHand = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble(&isSet);
    return {.hasTextScale = QGuiApplication::platformName() == u"xcb",
            .applied = screen->devicePixelRatio() / (isSet && byHand > 0 ? byHand : 1),
            .left = screen->logicalDotsPerInch() / usualResolution};
}

Appearance::Appearance(QObject* parent)
    : QObject(parent)
    , m_desktop{.scheme = m_settings.contains(darkKey)
                              ? m_settings.value(darkKey).toBool() ? ColorScheme::Dark : ColorScheme::Light
                              : ColorScheme::NoPreference,
                .wantsHighContrast = m_settings.value(contrastKey).toBool(),
                .textScale = m_settings.contains(textScaleKey)
                                 ? std::optional(m_settings.value(textScaleKey).toDouble())
                                 : std::nullopt}
    , m_watch([this](const OndelDesktop::DesktopAppearance& desktop) {
        const bool isNew = std::exchange(m_desktop, desktop) != desktop;
        const bool wasDark = m_dark;
        decide();
        if (isNew && wasDark == m_dark)
            Q_EMIT changed();
        remember();
    }) {
    qGuiApp->installEventFilter(this);
    decide();
}

void Appearance::remember() {
    const auto keep = [this]<typename T>(const char* key, T value) {
        if (!m_settings.contains(key) || m_settings.value(key).value<T>() != value)
            m_settings.setValue(key, value);
    };
    keep(darkKey, m_dark);
    keep(contrastKey, hasContrast());
    if (m_desktop.textScale)
        keep(textScaleKey, *m_desktop.textScale);
    else if (m_settings.contains(textScaleKey))
        m_settings.remove(textScaleKey);
}

bool Appearance::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange)
        decide();
    return QObject::eventFilter(watched, event);
}

void Appearance::decide() {
    const bool dark = m_desktop.scheme == ColorScheme::NoPreference ? platformLooksDark()
                                                                    : m_desktop.scheme == ColorScheme::Dark;
    if (dark == m_dark)
        return;
    m_dark = dark;
    Q_EMIT changed();
}

} // namespace TarnwickKit::views
