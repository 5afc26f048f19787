#include "OndelDesktop/StartupNotice.h"

#include "OndelDesktop/linux/XServer.h"

#include <algorithm>

namespace OndelDesktop {

namespace {

/// Sends a text to the desktop in pieces of 20 bytes, the last one with a NUL. The sending window tells the
/// pieces of one message from those of another.
void broadcast(const XServer& server, const std::string& text) {
    const xcb_window_t sender = xcb_generate_id(server.get());
    xcb_create_window(server.get(), 0, sender, server.root(), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 8;
    event.window = sender;
    event.type = server.atom("_NET_STARTUP_INFO_BEGIN");
    const xcb_atom_t next = server.atom("_NET_STARTUP_INFO");
    for (std::size_t at = 0; at <= text.size(); at += sizeof event.data.data8) {
        std::fill(std::begin(event.data.data8), std::end(event.data.data8), '\0');
        text.copy(reinterpret_cast<char*>(event.data.data8), sizeof event.data.data8, at);
        xcb_send_event(server.get(), 0, server.root(), XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char*>(&event));
        event.type = next;
    }
    xcb_destroy_window(server.get(), sender);
    server.finish();
}

std::string quoted(const std::string& value) {
    std::string text = "\"";
    for (const char c : value) {
        if (c == '"' || c == '\\')
            text += '\\';
        text += c;
    }
    return text + '"';
}

} // namespace

void completeStartup(const std::string& id, std::optional<std::uint32_t> window) {
    if (id.empty())
        return;
    const XServer server;
    if (!server)
        return;
    if (window)
        xcb_change_property(server.get(), XCB_PROP_MODE_REPLACE, *window, server.atom("_NET_STARTUP_ID"),
                            server.atom("UTF8_STRING"), 8, static_cast<std::uint32_t>(id.size()), id.data());
    broadcast(server, "remove: ID=" + quoted(id));
}

} // namespace OndelDesktop
