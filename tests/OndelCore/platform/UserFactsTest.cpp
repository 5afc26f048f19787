#include "OndelCore/platform/process/UserFacts.h"

#include "OndelCore/platform/process/StandardFolders.h"
#include "OndelCore/platform/storage/PrivateFolder.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
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
