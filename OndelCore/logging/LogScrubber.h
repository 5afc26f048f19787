#pragma once

#include "OndelCore/logging/PrivacyNet.h"
#include "OndelCore/platform/process/UserFacts.h"

#include <string>
#include <vector>

namespace OndelCore::logging {

/// The safety net behind Redact: replaces what still looks like a path, an address, a person's name or a
/// secret in a rendered line. A clean line costs a few scans of its bytes. Time is linear in the length of
/// the line. Threads: any.
class LogScrubber {
public:
    explicit LogScrubber(const platform::UserFacts& user);

    /// The scrubber for the user of this process, made on first use.
    static const LogScrubber& shared();

    /// Scrubs the line in place: first with the six common rules, then with the rules for this system.
    /// Returns the number of replacements; a literal counts once for all its occurrences. `line` must be
    /// valid UTF-8: text beside invalid bytes may be missed.
    int scrub(std::string& line) const;
    /// Only the user's names and the six common rules.
    int scrubByRules(std::string& line) const;

private:
    std::vector<std::string> m_literals;
    PrivacyNet m_net;
};

} // namespace OndelCore::logging
