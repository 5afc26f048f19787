#pragma once

#include "OndelCore/logging/Log.h"
#include "OndelCore/logging/LogOutput.h"
#include "OndelCore/logging/LogScrubber.h"
#include "OndelCore/logging/LogStore.h"
#include "OndelCore/platform/process/UnifiedLog.h"
#include "support/JournalSocket.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>

namespace test {

using namespace OndelCore::logging;

/// A Log of category "test" with its own store, file and journal, for a user chosen by the test.
class CapturedLog {
public:
    explicit CapturedLog(const OndelCore::platform::UserFacts& user = {})
        : m_scrubber(user)
        , m_unified(m_journal.path()) {
        m_store->startFileLogging(m_folder.path());
    }

    Log log() const { return Log("test", &m_output); }
    LogStore& store() { return *m_store; }
    std::filesystem::path file() const { return m_folder.path() / "ondel.log"; }

    /// The only line logged since the last call, without stamp, level and category. It is a test failure if
    /// store, file and journal differ.
    std::string takeBody() {
        const std::string line = m_store->snapshot(1 << 30);
        m_store->flush();
        EXPECT_EQ(contentOf(file()), line.empty() ? "" : line + "\n");
        const auto entry = m_journal.take();
        EXPECT_FALSE(m_journal.take()) << "one line, one entry";
        m_store->clear();
        std::filesystem::remove(file());

        const std::string head = "  test  ";
        const auto at = line.find(head);
        if (at == std::string::npos) {
            EXPECT_FALSE(entry);
            return {};
        }
        const std::string body = line.substr(at + head.size());
        const std::string level = line.substr(0, at).substr(line.substr(0, at).find_last_of(' ') + 1);
        EXPECT_EQ(entry.value_or("").substr(entry.value_or("").find("\nPRIORITY=") + 10, 1),
                  priorities.at(level));
        EXPECT_TRUE(entry && entry->ends_with(body + "\n"))
            << entry.value_or("no entry") << "\nis not the entry of\n"
            << body;
        return body;
    }

private:
    inline static const std::map<std::string, std::string> priorities{
        {"debug", "7"}, {"notice", "5"}, {"error", "3"}, {"fault", "2"}};

    TemporaryFolder m_folder;
    JournalSocket m_journal;
    LogScrubber m_scrubber;
    std::unique_ptr<LogStore> m_store = LogStore::makeForTesting(8);
    OndelCore::platform::UnifiedLog m_unified;
    LogOutput m_output{*m_store, m_scrubber, m_unified};
};

} // namespace test
