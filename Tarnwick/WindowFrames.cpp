#include "Tarnwick/WindowFrames.h"

#include "OndelDesktop/WindowFrames.h"

#include <QGuiApplication>

namespace {

/// X11 has window managers. The variable is Qt's own, for people who want no frames on Wayland.
bool areOurs() {
    return QGuiApplication::platformName().startsWith(u"wayland") &&
           !qEnvironmentVariableIntValue("QT_WAYLAND_DISABLE_WINDOWDECORATION") &&
           !OndelDesktop::compositorDrawsFrames();
}

} // namespace

WindowFrames::WindowFrames()
    : m_areOurs(areOurs()) {}
