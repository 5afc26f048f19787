#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace OndelDesktop {

/// What xcb hands out to be freed.
struct FreeByC {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename Reply>
using XReply = std::unique_ptr<Reply, FreeByC>;

/// A connection of its own: the toolkit's must not be written to. Fails: false as a boolean.
class XServer {
public:
    XServer()
        : m_connection(xcb_connect(nullptr, nullptr), &xcb_disconnect) {
        if (xcb_connection_has_error(get()) == 0)
            m_root = xcb_setup_roots_iterator(xcb_get_setup(get())).data->root;
    }

    explicit operator bool() const { return m_root != XCB_WINDOW_NONE; }
    xcb_connection_t* get() const { return m_connection.get(); }
    xcb_window_t root() const { return m_root; }

    xcb_atom_t atom(std::string_view name) const {
        const auto asked = xcb_intern_atom(get(), 0, static_cast<std::uint16_t>(name.size()), name.data());
        const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(get(), asked, nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    /// Returns when the server has processed all requests.
    void finish() const {
        const XReply<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(get(), xcb_get_input_focus(get()), nullptr));
    }

private:
    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t*)> m_connection;
    xcb_window_t m_root = XCB_WINDOW_NONE;
};

} // namespace OndelDesktop
