#include "TarnwickKit/views/window/Appearance.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

#include <utility>

namespace TarnwickKit::views {

using OndelDesktop::ColorScheme;

namespace {

constexpr auto darkKey = "TarnwickLastDark";
constexpr auto contrastKey = "TarnwickLastContrast";

bool platformLooksDark() {
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

} // namespace

Appearance::Appearance(QObject* parent)
    : QObject(parent)
    , m_desktop{.scheme = m_settings.contains(darkKey)
                              ? m_settings.value(darkKey).toBool() ? ColorScheme::Dark : ColorScheme::Light
                              : ColorScheme::NoPreference,
                .wantsHighContrast = m_settings.value(contrastKey).toBool()}
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
    const auto keep = [this](const char* key, bool value) {
        if (!m_settings.contains(key) || m_settings.value(key).toBool() != value)
            m_settings.setValue(key, value);
    };
    keep(darkKey, m_dark);
    keep(contrastKey, hasContrast());
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
