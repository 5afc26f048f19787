#pragma once

#include <optional>
#include <string>

namespace OndelDesktop {

/// A progress bar on the program's icon in the desktop's task bar or dock, where the desktop has one.
///
/// Threads: the main one; no call waits for an answer. Fails: silently, without a session bus.
class LauncherProgress {
public:
    /// `applicationId` names the desktop entry.
    explicit LauncherProgress(const std::string& applicationId);
    /// Removes the bar.
    ~LauncherProgress();
    LauncherProgress(const LauncherProgress&) = delete;
    LauncherProgress& operator=(const LauncherProgress&) = delete;

    /// Units: percent; absent: no bar.
    void show(std::optional<int> percent);

private:
    std::string m_applicationId;
    std::optional<int> m_percent;
};

} // namespace OndelDesktop
