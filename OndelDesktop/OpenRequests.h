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

/// What the desktop, a terminal or another program asks of the application. With nothing to open and nothing
/// to do, it is asked to come to the front.
struct OpenRequest {
    std::vector<std::string> urls;
    std::string action;          ///< the name of something to do
    std::string activationToken; ///< the desktop's leave to come to the front; empty: it gave none
};

/// What became of a request that was to be handed over.
struct HandOver {
    enum class Outcome {
        taken,      ///< the process that was here before has it, and this one has nothing left to do
        nobodyElse, ///< this process is the one, or there is no session to ask in
        noAnswer    ///< the process that was here before has been sent it, but does not answer
    };
    Outcome outcome = Outcome::nobodyElse;
    std::optional<std::uint32_t> process; ///< of `noAnswer`: its number, where it is known
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

    /// From others at most so many URLs of a request are taken, those in the middle of a longer list left
    /// out: a folder counts where it is first, run files where they are last. A longer token counts as none.
    static constexpr std::size_t mostUrls = 100;
    static constexpr std::size_t longestToken = 4096;
    /// No path is longer, with a scheme and a host before it and each of its 4095 bytes as "%xx".
    static constexpr std::size_t longestUrl = 3 * 4096 + 512;

    /// Gives `request`, whatever its length, to the process that was here before. Waits in an event loop, and
    /// for a process that does not answer at most about `patience`.
    HandOver handOver(const OpenRequest& request, std::chrono::milliseconds patience);

    /// From now on `take` is called for each request; before it returns, for those that came meanwhile.
    void deliverTo(Take take);

    /// Refuses requests from now on: this process is about to end, and the next start is to stay.
    void close();

private:
    std::unique_ptr<ApplicationBusAdaptor> m_door;
};

} // namespace OndelDesktop
