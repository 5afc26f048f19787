#pragma once

#include <functional>
#include <memory>
#include <optional>

namespace OndelDesktop {

enum class ColorScheme { NoPreference, Dark, Light };

/// How the desktop wants programs to look.
struct DesktopAppearance {
    ColorScheme scheme = ColorScheme::NoPreference;
    bool wantsHighContrast = false;
    bool wantsNoMotion = false;      ///< nothing should move by itself
    std::optional<double> textScale; ///< how much larger than usual texts should be

    bool operator==(const DesktopAppearance&) const = default;
};

/// Follows the desktop's settings. Where it has none, `changed` is told the defaults once.
///
/// Threads: needs an event loop on the thread that creates it; `changed` is called there. The constructor
/// does not wait for the first answer, which takes some milliseconds; without a session bus it calls
/// `changed`.
class AppearanceWatch {
public:
    explicit AppearanceWatch(std::function<void(const DesktopAppearance&)> changed);
    ~AppearanceWatch();
    AppearanceWatch(const AppearanceWatch&) = delete;
    AppearanceWatch& operator=(const AppearanceWatch&) = delete;

private:
    struct Listener;
    std::unique_ptr<Listener> m_listener;
};

} // namespace OndelDesktop
