#include "TarnwickKit/views/window/Appearance.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace TarnwickKit::views {

using OndelDesktop::ColorScheme;

namespace {

bool platformLooksDark() {
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

} // namespace

Appearance::Appearance(QObject* parent)
    : QObject(parent)
    , m_watch([this](ColorScheme scheme) {
        m_scheme = scheme;
        decide();
    }) {
    qGuiApp->installEventFilter(this);
    decide();
}

bool Appearance::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange)
        decide();
    return QObject::eventFilter(watched, event);
}

void Appearance::decide() {
    const bool dark =
        m_scheme == ColorScheme::NoPreference ? platformLooksDark() : m_scheme == ColorScheme::Dark;
    if (dark == m_dark)
        return;
    m_dark = dark;
    Q_EMIT darkChanged();
}

} // namespace TarnwickKit::views
