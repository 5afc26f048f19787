#pragma once

#include "OndelCore/platform/process/UserFacts.h"

#include <memory>
#include <string>

namespace re2 {
class RE2;
}

namespace OndelCore::logging {

/// The rules behind those of LogScrubber, for texts of a Linux desktop: mount points and other paths of
/// people's files in all spellings, addresses of servers, secrets after their keywords, serial numbers, short
/// and partial names. Harmless text of the same shape is spared. Time is linear in the length of the line.
/// Threads: any.
class PrivacyNet {
public:
    explicit PrivacyNet(const platform::UserFacts& user);
    ~PrivacyNet();

    /// Replaces in place. Returns the number of replacements. `line` must be UTF-8.
    int scrub(std::string& line) const;

private:
    std::unique_ptr<const re2::RE2> m_names; ///< null: no names to search for
    std::unique_ptr<const re2::RE2> m_words; ///< matches if some rule may match
};

} // namespace OndelCore::logging
