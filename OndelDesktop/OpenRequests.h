#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace OndelDesktop {

class ApplicationBusAdaptor;

/// A request of the desktop, a terminal or another program. Without URLs and an action it asks the window to
/// come to the front.
struct OpenRequest {
    std::vector<std::string> urls; ///< of an action: what it is about, such as a folder's URL
    std::string action;            ///< a name, as the desktop entry lists them
    std::string activationToken;   ///< permits a window to take the focus; may be empty
};

/// The result of handing a request over.
struct HandOver {
    enum class Outcome {
        taken,      ///< the running process has it; this one can end
        nobodyElse, ///< this process is the only one, or there is no session bus
        noAnswer    ///< the running process was sent the request and does not answer
    };
    Outcome outcome = Outcome::nobodyElse;
    std::optional<std::uint32_t> process; ///< of `noAnswer`: the process id, where it is known
};

/// Takes requests from outside the process and keeps the application to one process per session: the first
/// start stays, later ones hand their request over to it and end.
///
/// Threads: the main one, with an application object. Without a session bus every call does nothing.
class OpenRequests {
public:
    /// Whether the request was taken.
    using Take = std::function<bool(const OpenRequest&)>;

    /// `applicationId`: a reversed domain name, "org.example.App". Requests it on the bus without waiting.
    explicit OpenRequests(const std::string& applicationId);
    ~OpenRequests();
    OpenRequests(const OpenRequests&) = delete;
    OpenRequests& operator=(const OpenRequests&) = delete;

    /// The activation token of this start. Read it before the toolkit starts, which clears it.
    static std::string activationTokenOfStart();

    /// Limits on requests from other processes. Of a longer list of URLs the middle is dropped, because the
    /// first folder and the last run files are the ones that count. A longer token is ignored.
    static constexpr std::size_t mostUrls = 100;
    static constexpr std::size_t longestToken = 4096;
    /// No path is longer, with a scheme and a host before it and each of its 4095 bytes as "%xx".
    static constexpr std::size_t longestUrl = 3 * 4096 + 512;

    /// Sends `request`, whatever its length, to the process that owns the name. Runs an event loop while it
    /// waits, for at most about `patience`.
    HandOver handOver(const OpenRequest& request, std::chrono::milliseconds patience);

    /// Calls `take` for each request from now on, and at once for those that are waiting.
    void deliverTo(Take take);

    /// Refuses requests from now on and releases the name, so that the next start stays.
    void close();

private:
    std::unique_ptr<ApplicationBusAdaptor> m_adaptor;
};

} // namespace OndelDesktop
