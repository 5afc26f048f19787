#include "OndelDesktop/WindowAttention.h"

#include "OndelDesktop/linux/WaylandClient.h"
#include "xdg-activation-v1.h"

#include <QPointer>
#include <QWindow>

#include <optional>

namespace OndelDesktop {

namespace {

/// Asks for a token without the proof of a key or a press, and uses it. Compositors do not move the focus for
/// such a token; they mark the window. Owns itself.
class Activation {
public:
    Activation(QWindow* window, wl_display* display, const std::string& applicationId)
        : m_window(window)
        , m_applicationId(applicationId)
        , m_global(display, {&xdg_activation_v1_interface}, [this](const wl_interface*, wl_proxy* object) {
            askForToken(reinterpret_cast<xdg_activation_v1*>(object));
        }) {}
    Activation(const Activation&) = delete;
    Activation& operator=(const Activation&) = delete;

private:
    ~Activation() {
        if (m_token)
            xdg_activation_token_v1_destroy(m_token);
        if (m_activation)
            xdg_activation_v1_destroy(m_activation);
    }

    void askForToken(xdg_activation_v1* activation) {
        m_activation = activation;
        wl_surface* surface = toplevelSurface(m_window);
        if (!activation || !surface)
            return delete this;
        m_token = xdg_activation_v1_get_activation_token(activation);
        xdg_activation_token_v1_add_listener(m_token, &listener, this);
        xdg_activation_token_v1_set_surface(m_token, surface);
        xdg_activation_token_v1_set_app_id(m_token, m_applicationId.c_str());
        xdg_activation_token_v1_commit(m_token);
    }

    static void use(void* self, xdg_activation_token_v1*, const char* token) {
        auto* asked = static_cast<Activation*>(self);
        if (wl_surface* surface = toplevelSurface(asked->m_window))
            xdg_activation_v1_activate(asked->m_activation, token, surface);
        delete asked;
    }
    static constexpr xdg_activation_token_v1_listener listener{.done = use};

    QPointer<QWindow> m_window;
    std::string m_applicationId;
    xdg_activation_v1* m_activation = nullptr;
    xdg_activation_token_v1* m_token = nullptr;
    WaylandGlobal m_global;
};

} // namespace

void askForAttention(QWindow* window, const std::string& applicationId) {
    if (wl_display* display = waylandDisplay())
        new Activation(window, display, applicationId);
    else
        window->alert(0); // until it gets the focus
}

} // namespace OndelDesktop
