#pragma once

#include <memory>
#include <string>

namespace OndelDesktop {

/// While it lives, the machine does not fall asleep and the session does not become idle by themselves. What
/// is measured across a sleep is worth nothing.
///
/// Threads: the main one, with an event loop; no call waits for an answer. Fails: silently, where the system
/// has nobody to ask or refuses. It ends with the process at the latest.
class StayAwake {
public:
    /// `who` and `why` are shown to people who ask the system what keeps it awake.
    StayAwake(const std::string& who, const std::string& why);
    ~StayAwake();
    StayAwake(const StayAwake&) = delete;
    StayAwake& operator=(const StayAwake&) = delete;

private:
    struct Wish;
    std::shared_ptr<Wish> m_wish;
};

} // namespace OndelDesktop
