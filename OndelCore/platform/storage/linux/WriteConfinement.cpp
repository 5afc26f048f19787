#include "OndelCore/platform/storage/WriteConfinement.h"

#include "OndelCore/platform/storage/FileDescriptor.h"

#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>

// Landlock (kernel documentation, userspace-api/landlock.rst). The system calls are made directly: the C
// library has no functions for them, and the headers of the oldest supported system lack the later rights.

namespace OndelCore::platform {

namespace {

constexpr std::uint64_t writeFile = 1U << 1U;
constexpr std::uint64_t removeDir = 1U << 4U;
constexpr std::uint64_t removeFile = 1U << 5U;
constexpr std::uint64_t makeDir = 1U << 7U;
constexpr std::uint64_t makeReg = 1U << 8U;
/// Devices, sockets, pipes, symbolic links.
constexpr std::uint64_t makeOther = 1U << 6U | 1U << 9U | 1U << 10U | 1U << 11U | 1U << 12U;
constexpr std::uint64_t refer = 1U << 13U;    // since version 2
constexpr std::uint64_t truncate = 1U << 14U; // since version 3

constexpr unsigned askVersion = 1; // LANDLOCK_CREATE_RULESET_VERSION
constexpr int rulePathBeneath = 1; // LANDLOCK_RULE_PATH_BENEATH

struct RulesetAttributes {
    std::uint64_t handledAccess;
};
struct [[gnu::packed]] PathBeneathAttributes {
    std::uint64_t allowedAccess;
    std::int32_t parentDescriptor;
};
static_assert(sizeof(PathBeneathAttributes) == 12);

} // namespace

bool confineWritesOfThisThread(int folder) {
    const long version = syscall(SYS_landlock_create_ruleset, nullptr, 0, askVersion);
    if (version < 1)
        return false;
    std::uint64_t needed = writeFile | removeDir | removeFile | makeDir | makeReg;
    RulesetAttributes forbidden{needed | makeOther};
    if (version >= 2)
        forbidden.handledAccess |= refer;
    if (version >= 3) {
        forbidden.handledAccess |= truncate;
        needed |= truncate;
    }
    const FileDescriptor ruleset(
        static_cast<int>(syscall(SYS_landlock_create_ruleset, &forbidden, sizeof forbidden, 0)));
    const PathBeneathAttributes exception{needed, folder};
    return ruleset && syscall(SYS_landlock_add_rule, ruleset.get(), rulePathBeneath, &exception, 0) == 0 &&
           // For this thread; otherwise the next call requires privileges.
           prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           syscall(SYS_landlock_restrict_self, ruleset.get(), 0) == 0;
}

} // namespace OndelCore::platform
