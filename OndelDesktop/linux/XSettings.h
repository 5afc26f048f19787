#pragma once

#include "OndelDesktop/linux/XServer.h"

#include <QSocketNotifier>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// The settings that a service of an X11 desktop publishes (freedesktop.org, "XSETTINGS").
namespace OndelDesktop {

/// A setting whose value is a text. Fails: absent, also when `settings`, which another program wrote, is no
/// valid list up to there.
std::optional<std::string> textSetting(std::string_view settings, std::string_view name);

/// Follows the name of the desktop's theme.
/// Threads: needs an event loop; waits for the display server.
class XSettings {
public:
    /// `changed` is called from the event loop.
    explicit XSettings(std::function<void()> changed);

    /// Empty where no service tells it.
    const std::string& themeName() const { return m_themeName; }

private:
    void read();
    /// Whether the settings have to be read again.
    bool drainEvents();
    void follow();
    std::string settings();

    XServer m_server;
    xcb_atom_t m_manager;
    xcb_atom_t m_service;
    xcb_atom_t m_property;
    xcb_window_t m_owner = XCB_WINDOW_NONE;
    std::string m_themeName;
    std::function<void()> m_changed;
    std::optional<QSocketNotifier> m_events;
};

} // namespace OndelDesktop
