#include "OndelCore/platform/process/UnifiedLog.h"

#include "support/JournalSocket.h"

#include <gtest/gtest.h>

#include <fstream>

using namespace OndelCore::platform;

namespace {

UnifiedLogEntry entryOf(std::string_view text, UnifiedLogType type = UnifiedLogType::standard) {
    return {.subsystem = "tools.example", .category = "app", .level = "notice", .type = type, .text = text};
}

std::string headOf(char priority) {
    return std::string("SYSLOG_IDENTIFIER=tools.example\nPRIORITY=") + priority +
           "\nONDEL_CATEGORY=app\nONDEL_LEVEL=notice\n";
}

} // namespace

TEST(UnifiedLog, UsesTheJournalsProtocol) {
    test::JournalSocket journal;
    const UnifiedLog log(journal.path());
    const std::pair<UnifiedLogType, char> priorities[] = {{UnifiedLogType::debug, '7'},
                                                          {UnifiedLogType::standard, '5'},
                                                          {UnifiedLogType::error, '3'},
                                                          {UnifiedLogType::fault, '2'}};
    for (const auto& [type, priority] : priorities) {
        ASSERT_TRUE(log.isEnabled(type));
        log.record(entryOf("hello", type));
        EXPECT_EQ(journal.take(), headOf(priority) + "MESSAGE=hello\n");
    }
    using namespace std::literals;
    log.record(entryOf("two\nlines\0and a NUL"sv));
    EXPECT_EQ(journal.take(), headOf('5') + "MESSAGE\n\x13\0\0\0\0\0\0\0two\nlines\0and a NUL\n"s);
    const std::string giant(10'000'000, 'x');
    log.record(entryOf(giant));
    EXPECT_EQ(journal.take(), headOf('5') + "MESSAGE=" + giant + "\n");
}

TEST(UnifiedLog, NeverBlocksAndNeedsNoJournal) {
    {
        const test::JournalSocket deaf;
        const UnifiedLog log(deaf.path());
        for (int i = 0; i < 2000; ++i) // far more than its queue holds
            log.record(entryOf("line"));
    }
    const test::TemporaryFolder folder;
    std::ofstream(folder.path() / "file") << "x";
    for (const auto& path :
         {folder.path() / "none", folder.path() / "file", folder.path() / std::string(200, 'x')}) {
        const UnifiedLog log(path);
        EXPECT_FALSE(log.isEnabled(UnifiedLogType::fault));
        log.record(entryOf("line"));
    }
    test::JournalSocket journal;
    const UnifiedLog log(journal.path());
    journal.close();
    log.record(entryOf("lost"));
    journal.open();
    log.record(entryOf("after its restart"));
    EXPECT_EQ(journal.take(), headOf('5') + "MESSAGE=after its restart\n");
}
