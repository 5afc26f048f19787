#include "TarnwickKit/views/window/WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <chrono>

namespace TarnwickKit::views {

namespace {

constexpr const char* sizeKey = "TarnwickWindowSize";
constexpr const char* placeKey = "TarnwickWindowPlace";
constexpr const char* maximizedKey = "TarnwickWindowMaximized";

/// What has to be on a screen of a window's upper edge.
constexpr QSize leastGrip(80, 24);

bool knowsPlaces() { return !QGuiApplication::platformName().startsWith(QLatin1String("wayland")); }

QList<QRect> screensNow() {
    QList<QRect> screens{QGuiApplication::primaryScreen()->availableGeometry()};
    for (const QScreen* screen : QGuiApplication::screens())
        screens.append(screen->availableGeometry());
    return screens;
}

} // namespace

FittingPlace fittingPlace(QSize size, std::optional<QPoint> position, const QList<QRect>& screens) {
    if (position) {
        const QRect grip(*position, QSize(size.width(), leastGrip.height()));
        for (const QRect& screen : screens) {
            const QSize seen = screen.intersected(grip).size();
            if (seen.width() >= leastGrip.width() && seen.height() >= leastGrip.height())
                return {size.boundedTo(screen.size()), position};
        }
    }
    return {screens.isEmpty() ? size : size.boundedTo(screens.constFirst().size()), std::nullopt};
}

WindowPlace::WindowPlace(QObject* parent)
    : QObject(parent) {
    using namespace std::chrono_literals;
    m_soon.setSingleShot(true);
    m_soon.setInterval(500ms);
    connect(&m_soon, &QTimer::timeout, this, &WindowPlace::keep);
}

WindowPlace::~WindowPlace() {
    if (m_soon.isActive())
        keep();
}

void WindowPlace::setWindow(QWindow* window) {
    if (!window || m_window)
        return;
    m_window = window;
    restore();
    const auto later = [this] { m_soon.start(); };
    connect(window, &QWindow::widthChanged, this, later);
    connect(window, &QWindow::heightChanged, this, later);
    connect(window, &QWindow::xChanged, this, later);
    connect(window, &QWindow::yChanged, this, later);
    connect(window, &QWindow::windowStateChanged, this, later);
    Q_EMIT windowChanged();
}

void WindowPlace::restore() {
    const QSize size = m_settings.value(QLatin1String(sizeKey)).toSize();
    if (size.isEmpty())
        return;
    std::optional<QPoint> position;
    if (m_settings.contains(QLatin1String(placeKey)) && knowsPlaces())
        position = m_settings.value(QLatin1String(placeKey)).toPoint();
    const FittingPlace place = fittingPlace(size, position, screensNow());
    m_window->resize(place.size);
    if (place.position)
        m_window->setFramePosition(*place.position);
    if (m_settings.value(QLatin1String(maximizedKey)).toBool())
        m_window->setWindowState(Qt::WindowMaximized);
}

/// The size and place of a maximized window are not the user's choice.
void WindowPlace::keep() {
    if (!m_window || !m_window->isVisible())
        return;
    const Qt::WindowState state = m_window->windowState();
    if (state == Qt::WindowNoState) {
        m_settings.setValue(QLatin1String(sizeKey), m_window->size());
        if (knowsPlaces())
            m_settings.setValue(QLatin1String(placeKey), m_window->framePosition());
    }
    if (state == Qt::WindowNoState || state == Qt::WindowMaximized)
        m_settings.setValue(QLatin1String(maximizedKey), state == Qt::WindowMaximized);
}

} // namespace TarnwickKit::views
