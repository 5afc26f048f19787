#pragma once

#include <functional>
#include <memory>

namespace OndelDesktop {

enum class ColorScheme { NoPreference, Dark, Light };

/// Asks the desktop whether it wants programs dark or light, and keeps listening. Where the desktop cannot be
/// asked the function is not called.
///
/// Threads: needs an event loop on the thread that makes it; `changed` is called there, first some
/// milliseconds after the construction, which itself does not wait for an answer.
class ColorSchemeWatch {
public:
    explicit ColorSchemeWatch(std::function<void(ColorScheme)> changed);
    ~ColorSchemeWatch();
    ColorSchemeWatch(const ColorSchemeWatch&) = delete;
    ColorSchemeWatch& operator=(const ColorSchemeWatch&) = delete;

private:
    struct Listener;
    std::unique_ptr<Listener> m_listener;
};

} // namespace OndelDesktop
