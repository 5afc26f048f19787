#pragma once

#include <memory>
#include <string>

namespace OndelDesktop {

/// Keeps the machine from suspending and the session from becoming idle while it exists: a measurement across
/// a suspend is worthless.
///
/// Threads: the main one, with an event loop; no call waits for an answer. Fails: silently, where the system
/// refuses. Ends with the process at the latest.
class StayAwake {
public:
    /// `who` and `why` are shown by the system's list of inhibitors.
    StayAwake(const std::string& who, const std::string& why);
    ~StayAwake();
    StayAwake(const StayAwake&) = delete;
    StayAwake& operator=(const StayAwake&) = delete;

private:
    struct Wish;
    std::shared_ptr<Wish> m_wish;
};

} // namespace OndelDesktop
