#pragma once

#include "OndelCore/logging/PrivacyNet.h"
#include "OndelCore/platform/process/UserFacts.h"

#include <string>
#include <vector>

namespace OndelCore::logging {

/// The safety net behind Redact: looks at a finished line and replaces whatever still has the shape of a
/// path, an address, a person's name or a secret. A clean line costs a few scans over its bytes; any line
/// costs time in proportion to its length. Threads: any.
class LogScrubber {
public:
    explicit LogScrubber(const platform::UserFacts& user);

    /// For the user of this process, made on first use.
    static const LogScrubber& shared();

    /// Scrubs the line in place, with the six rules that every system has and then with the net for this one.
    /// Result: the number of replacements (a literal counts once however often it
    /// stood there). `line` must be UTF-8: bytes that are none hide what stands beside them.
    int scrub(std::string& line) const;
    /// The user's names and the six rules alone.
    int scrubByRules(std::string& line) const;

private:
    std::vector<std::string> m_literals;
    PrivacyNet m_net;
};

} // namespace OndelCore::logging
