#include "OndelDesktop/WindowFrames.h"

#include <wayland-client.h>

#include <cstdint>
#include <memory>
#include <string_view>

namespace OndelDesktop {

namespace {

void announced(void* isThere, wl_registry*, std::uint32_t, const char* interface, std::uint32_t) {
    if (interface == std::string_view("zxdg_decoration_manager_v1"))
        *static_cast<bool*>(isThere) = true;
}

void withdrawn(void*, wl_registry*, std::uint32_t) {}

} // namespace

/// Over a connection of its own: the answer decides how the first window is made, and Qt's own connection is
/// read by its event loop, which does not run yet.
bool compositorDrawsFrames() {
    const std::unique_ptr<wl_display, decltype(&wl_display_disconnect)> display(wl_display_connect(nullptr),
                                                                                wl_display_disconnect);
    if (!display)
        return true;
    const std::unique_ptr<wl_registry, decltype(&wl_registry_destroy)> registry(
        wl_display_get_registry(display.get()), wl_registry_destroy);
    static constexpr wl_registry_listener listener{.global = announced, .global_remove = withdrawn};
    bool isThere = false;
    wl_registry_add_listener(registry.get(), &listener, &isThere);
    return wl_display_roundtrip(display.get()) < 0 || isThere;
}

} // namespace OndelDesktop
