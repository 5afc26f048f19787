#pragma once

#include <functional>
#include <memory>
#include <string>

namespace OndelDesktop {

class NoticeService;

/// A notification of the desktop, for people who look at another window. One at a time.
///
/// Threads: the main one, with an event loop; no call waits for an answer. Fails: silently, where the desktop
/// shows no notifications.
class DesktopNotice {
public:
    /// `applicationId` names the desktop entry and the icon. `chosen` is called when the user presses the
    /// notice. Its token permits a window to take the focus and may be empty.
    DesktopNotice(const std::string& applicationId, const std::string& applicationName,
                  std::function<void(const std::string& activationToken)> chosen);
    ~DesktopNotice();
    DesktopNotice(const DesktopNotice&) = delete;
    DesktopNotice& operator=(const DesktopNotice&) = delete;

    /// Replaces the previous notice.
    void show(const std::string& title, const std::string& text);
    /// Removes the notice if it is still shown.
    void withdraw();

private:
    std::unique_ptr<NoticeService> m_service;
};

} // namespace OndelDesktop
