// The main function of every GoogleTest program: a home, XDG folders and a temporary folder that belong to
// this process alone, no display, no bus, English texts. Whatever a test writes by mistake lands in there and
// is removed.

#include "support/Application.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>

/// Qt's library is not built for the thread sanitizer: the reference counts and locks by which a future hands
/// its result from one thread to another are invisible to it. Without that sanitizer nobody calls this.
extern "C" const char* __tsan_default_suppressions() {
    return "race:QWaitCondition::~QWaitCondition\n"
           "race:QFutureInterface\n"
           "race:QtPrivate::ResultStoreBase::clear\n";
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);

    const test::TemporaryFolder sandbox;
    const auto redirect = [&](const char* variable, const char* folder, unsigned mode) {
        const auto path = sandbox.path() / folder;
        std::filesystem::create_directories(path);
        std::filesystem::permissions(path, std::filesystem::perms{mode});
        setenv(variable, path.c_str(), 1);
    };
    redirect("HOME", "home", 0700);
    redirect("XDG_CONFIG_HOME", "home/.config", 0700);
    redirect("XDG_DATA_HOME", "home/.local/share", 0700);
    redirect("XDG_STATE_HOME", "home/.local/state", 0700);
    redirect("XDG_CACHE_HOME", "home/.cache", 0700);
    redirect("XDG_RUNTIME_DIR", "run", 0700);
    redirect("TMPDIR", "tmp", 0700);
    for (const char* bus : {"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"})
        setenv(bus, "disabled:", 1);
    for (const char* desktop : {"QT_QPA_PLATFORMTHEME", "XDG_CURRENT_DESKTOP", "XDG_DATA_DIRS",
                                "XDG_CONFIG_DIRS", "DISPLAY", "WAYLAND_DISPLAY", "SESSION_MANAGER"})
        unsetenv(desktop);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("QT_QUICK_BACKEND", "software", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    setenv("TZ", "UTC", 1);

    const auto application = test::makeApplication(argc, argv);
    return RUN_ALL_TESTS();
}
