#pragma once

#include <QList>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QQmlEngine>
#include <QRect>
#include <QSettings>
#include <QSize>
#include <QTimer>
#include <QWindow>

#include <optional>

namespace TarnwickKit::views {

/// A window's geometry from an earlier start, as far as it fits the screens of today. Units: logical pixels.
struct FittingPlace {
    QSize size;
    std::optional<QPoint> position; ///< of the frame; empty where the window manager shall choose
};

/// `screens`: what windows may cover of each, the primary one first. A position counts if enough of the
/// window's upper edge can be seen to take hold of it.
FittingPlace fittingPlace(QSize size, std::optional<QPoint> position, const QList<QRect>& screens);

/// Keeps a window's size and place in the user's settings, and restores them before it is first shown.
/// Wayland tells no places; there it is the size alone. Threads: main.
class WindowPlace : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// Is set once.
    Q_PROPERTY(QWindow* window READ window WRITE setWindow NOTIFY windowChanged)
public:
    explicit WindowPlace(QObject* parent = nullptr);
    ~WindowPlace() override;
    Q_DISABLE_COPY_MOVE(WindowPlace)

    QWindow* window() const { return m_window; }
    void setWindow(QWindow* window);
    Q_SIGNAL void windowChanged();

private:
    void restore();
    void keep();

    QPointer<QWindow> m_window;
    QSettings m_settings;
    QTimer m_soon; ///< while a window is moved or resized, not each step is written
};

} // namespace TarnwickKit::views
