#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace OndelCore::platform {

class OpenRequestsDoor;

/// What the desktop, a terminal or another program asks of the application. With nothing to open and nothing
/// to do, it is asked to come to the front.
struct OpenRequest {
    std::vector<std::string> urls;
    std::string action;          ///< the name of something to do
    std::string activationToken; ///< the desktop's leave to come to the front; empty: it gave none
};

/// Takes requests from outside the process, and sees to it that there is one process to take them: of several
/// starts in one session the first stays, the others hand over to it and end.
///
/// Threads: the main one, with an application object. Without a session to ask in, every call does nothing.
class OpenRequests {
public:
    /// Whether the request was taken.
    using Take = std::function<bool(const OpenRequest&)>;

    /// `applicationId`: a reversed domain name, "org.example.App". Asks the session for it without waiting.
    explicit OpenRequests(const std::string& applicationId);
    ~OpenRequests();
    OpenRequests(const OpenRequests&) = delete;
    OpenRequests& operator=(const OpenRequests&) = delete;

    /// The desktop's leave for this start. To be asked before the toolkit starts, which forgets it.
    static std::string activationTokenOfStart();

    /// Gives `request` to the process that was here before. Waits in an event loop, and for a process that
    /// does not answer at most about `patience`. True: it took the request, and this process has nothing left
    /// to do. False: this process is the one, or nobody answers.
    bool handOver(const OpenRequest& request, std::chrono::milliseconds patience);

    /// From now on `take` is called for each request; before it returns, for those that came meanwhile.
    void deliverTo(Take take);

    /// Refuses requests from now on: this process is about to end, and the next start is to stay.
    void close();

private:
    std::unique_ptr<OpenRequestsDoor> m_door;
};

} // namespace OndelCore::platform
