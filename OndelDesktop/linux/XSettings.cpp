#include "OndelDesktop/linux/XSettings.h"

#include <cstddef>
#include <cstdint>
#include <utility>

namespace OndelDesktop {

namespace {

/// Reads a list from its beginning. After its end everything is 0 and empty.
class SettingsReader {
public:
    explicit SettingsReader(std::string_view bytes)
        : m_left(bytes) {
        m_isBigEndian = number(1) == 1;
        skip(3);
    }

    bool isAtEnd() const { return m_left.empty(); }

    std::uint32_t number(std::size_t bytes) {
        std::uint32_t value = 0;
        const std::string_view taken = take(bytes);
        for (std::size_t i = 0; i < taken.size(); ++i)
            value = value << 8 | static_cast<unsigned char>(taken[m_isBigEndian ? i : taken.size() - 1 - i]);
        return value;
    }

    /// With the padding behind it.
    std::string_view text(std::size_t bytes) {
        const std::string_view taken = take(bytes);
        skip((4 - bytes % 4) % 4);
        return taken;
    }

    void skip(std::size_t bytes) { take(bytes); }

private:
    std::string_view take(std::size_t bytes) {
        if (bytes > m_left.size())
            m_left = {};
        const std::string_view taken = m_left.substr(0, bytes);
        m_left.remove_prefix(taken.size());
        return taken;
    }

    std::string_view m_left;
    bool m_isBigEndian = false;
};

} // namespace

std::optional<std::string> textSetting(std::string_view settings, std::string_view name) {
    enum Type { integer, text, color };
    SettingsReader reader(settings);
    reader.skip(4); // the count of changes
    for (auto left = reader.number(4); left > 0 && !reader.isAtEnd(); --left) {
        const std::uint32_t type = reader.number(1);
        reader.skip(1);
        const std::string_view entry = reader.text(reader.number(2));
        reader.skip(4); // the count at its last change
        if (type == text) {
            const std::string_view value = reader.text(reader.number(4));
            if (entry == name)
                return std::string(value);
        } else if (type == integer || type == color) {
            reader.skip(type == integer ? 4 : 8);
        } else {
            break;
        }
    }
    return std::nullopt;
}

XSettings::XSettings(std::function<void()> changed)
    : m_manager(m_server ? m_server.atom("MANAGER") : xcb_atom_t{XCB_ATOM_NONE})
    , m_service(m_server ? m_server.atom("_XSETTINGS_S0") : xcb_atom_t{XCB_ATOM_NONE})
    , m_property(m_server ? m_server.atom("_XSETTINGS_SETTINGS") : xcb_atom_t{XCB_ATOM_NONE})
    , m_changed(std::move(changed)) {
    if (!m_server)
        return;
    const std::uint32_t newServices = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_server.get(), m_server.root(), XCB_CW_EVENT_MASK, &newServices);
    m_events.emplace(xcb_get_file_descriptor(m_server.get()), QSocketNotifier::Read);
    QObject::connect(&*m_events, &QSocketNotifier::activated, &*m_events, [this] { follow(); });
    read();
}

void XSettings::follow() {
    const std::string previous = m_themeName;
    while (drainEvents())
        read(); // while it waits, more events may come in, of which the descriptor does not tell
    if (xcb_connection_has_error(m_server.get()) != 0)
        m_events->setEnabled(false);
    if (m_themeName != previous)
        m_changed();
}

bool XSettings::drainEvents() {
    bool isOutdated = false;
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(m_server.get())}) {
        const auto type = event->response_type & 0x7f;
        if (type == XCB_CLIENT_MESSAGE) {
            const auto* message = reinterpret_cast<const xcb_client_message_event_t*>(event.get());
            isOutdated |= message->type == m_manager && message->data.data32[1] == m_service;
        } else if (type == XCB_PROPERTY_NOTIFY) {
            isOutdated |=
                reinterpret_cast<const xcb_property_notify_event_t*>(event.get())->atom == m_property;
        } else if (type == XCB_DESTROY_NOTIFY) {
            isOutdated |= reinterpret_cast<const xcb_destroy_notify_event_t*>(event.get())->window == m_owner;
        }
    }
    return isOutdated;
}

void XSettings::read() { m_themeName = textSetting(settings(), "Net/ThemeName").value_or(std::string()); }

std::string XSettings::settings() {
    constexpr std::uint32_t mostWords = 64 * 1024; // of four bytes
    xcb_connection_t* server = m_server.get();
    const XReply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(server, xcb_get_selection_owner(server, m_service), nullptr));
    m_owner = owner ? owner->owner : xcb_window_t{XCB_WINDOW_NONE};
    if (m_owner == XCB_WINDOW_NONE)
        return {};
    const std::uint32_t changes = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(server, m_owner, XCB_CW_EVENT_MASK, &changes);
    const auto asked = xcb_get_property(server, 0, m_owner, m_property, m_property, 0, mostWords);
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(server, asked, nullptr));
    if (!reply || reply->format != 8)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

} // namespace OndelDesktop
