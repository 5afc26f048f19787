#pragma once

#include <QString>

#include <functional>
#include <memory>

class QWindow;

namespace OndelDesktop {

/// A name for a window under which a program of the desktop can make it the parent of one of its own. Valid
/// as long as this exists.
/// Threads: the main one; does not wait.
class ExportedWindow {
public:
    /// `named` is called once, on X11 by the constructor: with an identifier as the desktop's portal defines
    /// it, which is empty for a window that has none.
    ExportedWindow(QWindow* window, std::function<void(const QString& identifier)> named);
    ~ExportedWindow();
    ExportedWindow(const ExportedWindow&) = delete;
    ExportedWindow& operator=(const ExportedWindow&) = delete;

private:
    class OnWayland;
    std::unique_ptr<OnWayland> m_onWayland;
};

} // namespace OndelDesktop
