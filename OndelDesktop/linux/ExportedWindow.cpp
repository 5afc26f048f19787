#include "OndelDesktop/linux/ExportedWindow.h"

#include "OndelDesktop/linux/WaylandClient.h"
#include "xdg-foreign-unstable-v1.h"
#include "xdg-foreign-unstable-v2.h"

#include <QGuiApplication>
#include <QPointer>
#include <QWindow>

#include <utility>

namespace OndelDesktop {

namespace {

/// The exporters that compositors have, the newest first. They differ in nothing but their names: GNOME 43
/// has the first version alone, Plasma 5.27 the second.
struct Exporter {
    const wl_interface* global;
    const wl_interface* exported;
};
const Exporter exporters[] = {{&zxdg_exporter_v2_interface, &zxdg_exported_v2_interface},
                              {&zxdg_exporter_v1_interface, &zxdg_exported_v1_interface}};
static_assert(ZXDG_EXPORTER_V1_EXPORT == ZXDG_EXPORTER_V2_EXPORT_TOPLEVEL);
static_assert(ZXDG_EXPORTER_V1_DESTROY == ZXDG_EXPORTER_V2_DESTROY);
static_assert(ZXDG_EXPORTED_V1_DESTROY == ZXDG_EXPORTED_V2_DESTROY);

void destroy(wl_proxy* object, std::uint32_t request) {
    wl_proxy_marshal_flags(object, request, nullptr, 1, WL_MARSHAL_FLAG_DESTROY);
}

} // namespace

class ExportedWindow::OnWayland {
public:
    using Named = std::function<void(const QString&)>;

    OnWayland(QWindow* window, wl_display* display, Named named)
        : m_window(window)
        , m_named(std::move(named))
        , m_global(display, {exporters[0].global, exporters[1].global},
                   [this](const wl_interface* interface, wl_proxy* object) { exportBy(interface, object); }) {
    }
    ~OnWayland() {
        if (m_exported)
            destroy(m_exported, ZXDG_EXPORTED_V2_DESTROY);
    }
    OnWayland(const OnWayland&) = delete;
    OnWayland& operator=(const OnWayland&) = delete;

private:
    void exportBy(const wl_interface* interface, wl_proxy* exporter);
    static void handle(void* self, zxdg_exported_v2*, const char* handle) {
        const auto* exported = static_cast<OnWayland*>(self);
        exported->m_named(QStringLiteral("wayland:") + QString::fromUtf8(handle));
    }
    static constexpr zxdg_exported_v2_listener listener{.handle = handle};

    QPointer<QWindow> m_window;
    Named m_named;
    wl_proxy* m_exported = nullptr;
    WaylandGlobal m_global;
};

void ExportedWindow::OnWayland::exportBy(const wl_interface* interface, wl_proxy* exporter) {
    wl_surface* surface = toplevelSurface(m_window);
    for (const auto& [global, exported] : exporters)
        if (surface && global == interface)
            m_exported = wl_proxy_marshal_flags(exporter, ZXDG_EXPORTER_V2_EXPORT_TOPLEVEL, exported, 1, 0,
                                                nullptr, surface);
    if (exporter)
        destroy(exporter, ZXDG_EXPORTER_V2_DESTROY);
    if (!m_exported)
        return m_named(QString());
    wl_proxy_add_listener(
        m_exported, reinterpret_cast<void (**)()>(const_cast<zxdg_exported_v2_listener*>(&listener)), this);
}

ExportedWindow::ExportedWindow(QWindow* window, std::function<void(const QString&)> named) {
    if (wl_display* display = waylandDisplay()) {
        m_onWayland = std::make_unique<OnWayland>(window, display, std::move(named));
        return;
    }
    const bool isOnX11 = window && QGuiApplication::platformName() == u"xcb";
    named(isOnX11 ? QStringLiteral("x11:%1").arg(window->winId(), 0, 16) : QString());
}

ExportedWindow::~ExportedWindow() = default;

} // namespace OndelDesktop
