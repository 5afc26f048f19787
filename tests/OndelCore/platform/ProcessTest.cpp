#include "OndelCore/platform/process/Sandbox.h"
#include "OndelCore/platform/process/StandardFolders.h"
#include "OndelCore/platform/process/UnifiedLog.h"
#include "OndelCore/platform/process/UserFacts.h"
#include "OndelCore/platform/storage/PrivateFolder.h"
#include "support/JournalSocket.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <string>

using namespace OndelCore::platform;

namespace {

/// Sets or unsets an environment variable for the lifetime of the object.
class Variable {
public:
    Variable(const char* name, const char* value)
        : m_name(name)
        , m_before(getenv(name)) {
        value ? setenv(name, value, 1) : unsetenv(name);
    }
    ~Variable() { setenv(m_name, m_before.c_str(), 1); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* m_name;
    std::string m_before;
};

} // namespace

TEST(StandardFolders, UseTheEnvironmentThenTheUserDatabase) {
    EXPECT_EQ(homeFolder(), getenv("HOME"));
    EXPECT_EQ(stateHome(), getenv("XDG_STATE_HOME"));
    const passwd* user = getpwuid(geteuid());
    const Variable relative("XDG_STATE_HOME", "relative/is/ignored");
    EXPECT_EQ(stateHome(), std::filesystem::path(getenv("HOME")) / ".local/state");
    for (const char* home : {static_cast<const char*>(nullptr), "", "relative"}) {
        const Variable noHome("HOME", home);
        EXPECT_EQ(homeFolder(), user->pw_dir);
        EXPECT_EQ(userFacts().homeFolder, user->pw_dir);
        EXPECT_EQ(userFacts().shortName, user->pw_name);
    }
}

TEST(Sandbox, TellsWhetherItHasANetwork) {
    const test::TemporaryFolder folder;
    EXPECT_FALSE(sandbox(folder.path()));
    struct Case {
        const char* description;
        bool hasNetwork;
    };
    for (const auto& [description, hasNetwork] : {
             Case{"", false},
             Case{"[Context]\nshared=ipc;\nsockets=network;\n", false},
             Case{"[Context]\nshared=networks;my network;\n", false},
             Case{"[Policy]\nshared=network;\n", false},
             Case{"[Context]\nshared=network;ipc;\n", true},
             Case{"[Context]\nshared=ipc;network\n[Policy]\nshared=ipc;\n", true},
         }) {
        std::ofstream(folder.path() / ".flatpak-info") << description;
        const auto found = sandbox(folder.path());
        ASSERT_TRUE(found) << description;
        EXPECT_EQ(found->hasNetwork, hasNetwork) << description;
    }
}

TEST(PrivateTemporaryFolder, IsInTheSessionsFolderElseReused) {
    namespace fs = std::filesystem;
    const fs::path session = privateTemporaryFolder().value();
    EXPECT_EQ(session.parent_path(), getenv("XDG_RUNTIME_DIR"));
    const Variable none("XDG_RUNTIME_DIR", nullptr);
    fs::remove(session);
    const fs::path made = privateTemporaryFolder().value(),
                   earlier = made.parent_path() / "tools.ondel.tarnwick-x";
    EXPECT_EQ(made.parent_path(), getenv("TMPDIR"));
    fs::rename(made, earlier);
    EXPECT_EQ(privateTemporaryFolder(), earlier);
    fs::permissions(earlier, fs::perms::group_read, fs::perm_options::add);
    const fs::path another = privateTemporaryFolder().value();
    EXPECT_NE(another, earlier);
    if (chown(another.c_str(), 65534, 65534) == 0) { // only as root
        EXPECT_NE(privateTemporaryFolder().value(), another);
    }
}

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
