#include "CapturedLog.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

using namespace OndelCore::logging;

namespace test {

std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

CapturedLog::CapturedLog(const OndelCore::platform::UserFacts& user)
    : m_scrubber(user)
    , m_store(LogStore::makeForTesting(8))
    , m_unified(m_journal.path())
    , m_output{*m_store, m_scrubber, m_unified} {
    m_store->startFileLogging(m_folder.path());
}

std::string CapturedLog::takeBody() {
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
    EXPECT_TRUE(entry && entry->ends_with(body + "\n"))
        << entry.value_or("no entry") << "\nis not the entry of\n"
        << body;
    return body;
}

} // namespace test
