#pragma once

#include "OndelCore/logging/Log.h"
#include "OndelCore/logging/LogScrubber.h"
#include "OndelCore/logging/LogStore.h"
#include "OndelCore/platform/UnifiedLog.h"
#include "support/JournalSocket.h"
#include "support/TemporaryFolder.h"

#include <memory>
#include <string>

namespace test {

std::string contentOf(const std::filesystem::path& file);

/// A Log of category "test" with a store, a file and a journal of its own, for a user of the test's choice.
class CapturedLog {
public:
    explicit CapturedLog(const OndelCore::platform::UserFacts& user = {});

    OndelCore::logging::Log log() const { return OndelCore::logging::Log("test", &m_output); }
    OndelCore::logging::LogStore& store() { return *m_store; }
    std::filesystem::path file() const { return m_folder.path() / "ondel.log"; }

    /// The one line logged since the last call, without stamp, level and category. Store, file and journal
    /// must hold the same; what they hold otherwise is a test failure.
    std::string takeBody();

private:
    TemporaryFolder m_folder;
    JournalSocket m_journal;
    OndelCore::logging::LogScrubber m_scrubber;
    std::unique_ptr<OndelCore::logging::LogStore> m_store;
    OndelCore::platform::UnifiedLog m_unified;
    OndelCore::logging::LogOutput m_output;
};

} // namespace test
