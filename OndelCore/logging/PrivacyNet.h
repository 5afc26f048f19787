#pragma once

#include "OndelCore/platform/process/UserFacts.h"

#include <memory>
#include <string>

namespace re2 {
class RE2;
}

namespace OndelCore::logging {

/// The second net, behind the rules of LogScrubber, for what a Linux desktop writes: mount points and other
/// places of people's files in all their spellings, addresses of servers, secrets behind their words, serial
/// numbers, short and partial names. Words that the shapes have in common with harmless text are spared.
/// Works in time proportional to the line. Threads: any.
class PrivacyNet {
public:
    explicit PrivacyNet(const platform::UserFacts& user);
    ~PrivacyNet();

    /// Replaces in place. Result: the number of replacements. `line` must be UTF-8.
    int scrub(std::string& line) const;

private:
    std::unique_ptr<const re2::RE2> m_names; ///< null: nothing to look for
    std::unique_ptr<const re2::RE2> m_words; ///< holds where some rule may have something to do
};

} // namespace OndelCore::logging
