#include "OndelDesktop/linux/WaylandClient.h"

#include <QGuiApplication>
#include <QWindow>
#include <qpa/qplatformnativeinterface.h>

#include <string_view>
#include <utility>

namespace OndelDesktop {

wl_display* waylandDisplay() {
    if (!QGuiApplication::platformName().startsWith(u"wayland"))
        return nullptr;
    return static_cast<wl_display*>(
        QGuiApplication::platformNativeInterface()->nativeResourceForIntegration("wl_display"));
}

wl_surface* toplevelSurface(QWindow* window) {
    if (!window || !window->isVisible() || !window->handle() || !waylandDisplay())
        return nullptr;
    auto* native = QGuiApplication::platformNativeInterface();
    if (!native->nativeResourceForWindow("xdg_toplevel", window))
        return nullptr;
    return static_cast<wl_surface*>(native->nativeResourceForWindow("surface", window));
}

struct WaylandGlobal::Listeners {
    static constexpr wl_registry_listener registry{
        .global = [](void* self, wl_registry*, std::uint32_t name, const char* interface,
                     std::uint32_t) { static_cast<WaylandGlobal*>(self)->announced(interface, name); },
        .global_remove = [](void*, wl_registry*, std::uint32_t) {}};
    static constexpr wl_callback_listener end{.done = [](void* self, wl_callback*, std::uint32_t) {
        static_cast<WaylandGlobal*>(self)->allAnnounced();
    }};
};

/// The compositor answers in order: the end of the announcements is the answer to the second request.
WaylandGlobal::WaylandGlobal(wl_display* display, const std::vector<const wl_interface*>& interfaces,
                             Found found)
    : m_found(std::move(found))
    , m_registry(wl_display_get_registry(display))
    , m_end(wl_display_sync(display)) {
    for (const wl_interface* interface : interfaces)
        m_offers.push_back({.interface = interface});
    wl_registry_add_listener(m_registry, &Listeners::registry, this);
    wl_callback_add_listener(m_end, &Listeners::end, this);
    wl_display_flush(display);
}

WaylandGlobal::~WaylandGlobal() {
    wl_callback_destroy(m_end);
    wl_registry_destroy(m_registry);
}

void WaylandGlobal::announced(const char* interface, std::uint32_t name) {
    for (Offer& offer : m_offers)
        if (std::string_view(offer.interface->name) == interface)
            offer.name = name;
}

void WaylandGlobal::allAnnounced() {
    constexpr std::uint32_t version = 1;
    const Found found = std::exchange(m_found, nullptr);
    for (const auto& [interface, name] : m_offers)
        if (name != 0)
            return found(interface,
                         static_cast<wl_proxy*>(wl_registry_bind(m_registry, name, interface, version)));
    found(nullptr, nullptr);
}

} // namespace OndelDesktop
