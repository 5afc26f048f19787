#pragma once

#include <functional>
#include <memory>

namespace OndelDesktop {

enum class ColorScheme { NoPreference, Dark, Light };

/// Follows the desktop's preference for dark or light programs. Where the desktop has no such setting,
/// `changed` is never called.
///
/// Threads: needs an event loop on the thread that creates it; `changed` is called there. The constructor
/// does not wait for the first answer, which takes some milliseconds.
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
