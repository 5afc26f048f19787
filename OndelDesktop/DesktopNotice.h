#pragma once

#include <functional>
#include <memory>
#include <string>

namespace OndelDesktop {

class NoticeService;

/// Tells people something through the desktop, while they look at another window. One notice at a time.
///
/// Threads: the main one, with an event loop; no call waits for an answer. Fails: silently, where nobody
/// shows notices.
class DesktopNotice {
public:
    /// `applicationId` names the desktop entry, and the icon. `chosen` is called when somebody presses the
    /// notice, with the desktop's leave to come to the front (may be empty).
    DesktopNotice(const std::string& applicationId, const std::string& applicationName,
                  std::function<void(const std::string& activationToken)> chosen);
    ~DesktopNotice();
    DesktopNotice(const DesktopNotice&) = delete;
    DesktopNotice& operator=(const DesktopNotice&) = delete;

    /// Takes the place of the notice before.
    void show(const std::string& title, const std::string& text);
    /// Takes the notice away, if it is still there.
    void withdraw();

private:
    std::unique_ptr<NoticeService> m_service;
};

} // namespace OndelDesktop
