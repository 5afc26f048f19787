#pragma once

#include <wayland-client.h>

#include <cstdint>
#include <functional>
#include <vector>

class QWindow;

/// Wayland, where Qt has no words for it. Requests go over Qt's own connection, because no other knows the
/// window's surface. The answers arrive in the queue that Qt reads in its event loop.
/// Threads: the main one; no call waits for the compositor.
namespace OndelDesktop {

/// The connection to the compositor. Fails: null on other platforms.
wl_display* waylandDisplay();

/// The surface of a window. Fails: null, also while the window is not shown as an ordinary one: compositors
/// end a program that makes the requests below for another kind of surface.
wl_surface* toplevelSurface(QWindow* window);

/// Finds one of the compositor's global objects.
class WaylandGlobal {
public:
    /// Called once, with the first of the `interfaces` that the compositor has and a new object of it, which
    /// the callee owns; else with nulls.
    using Found = std::function<void(const wl_interface* interface, wl_proxy* object)>;

    WaylandGlobal(wl_display* display, const std::vector<const wl_interface*>& interfaces, Found found);
    ~WaylandGlobal();
    WaylandGlobal(const WaylandGlobal&) = delete;
    WaylandGlobal& operator=(const WaylandGlobal&) = delete;

private:
    struct Listeners;
    struct Offer {
        const wl_interface* interface;
        std::uint32_t name = 0; ///< 0: not announced
    };
    void announced(const char* interface, std::uint32_t name);
    void allAnnounced();

    std::vector<Offer> m_offers;
    Found m_found;
    wl_registry* m_registry;
    wl_callback* m_end;
};

} // namespace OndelDesktop
