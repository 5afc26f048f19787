#include "OndelCore/volumes/VolumeAccess.h"

#include "OndelCore/volumes/FileUrl.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <stdexcept>
#include <system_error>

using namespace OndelCore::volumes;
namespace fs = std::filesystem;

namespace {

TEST(Bookmark, FindsItsFolderAndDetectsAReplacement) {
    const test::TemporaryFolder parent;
    for (const std::string name : {"plain", "two words", "two\nlines", "caf\xe9", "12 34\n"}) {
        const fs::path folder = parent.path() / name;
        fs::create_directory(folder);
        const BookmarkData data = VolumeAccess::bookmark(folder);
        EXPECT_EQ(VolumeAccess::resolve(data), (ResolvedBookmark{folder, false}));

        // The old folder is kept elsewhere, so that its inode is not reused.
        fs::rename(folder, parent.path() / "elsewhere");
        EXPECT_EQ(VolumeAccess::resolve(data), (ResolvedBookmark{folder, true}));
        fs::create_directory(folder);
        EXPECT_EQ(VolumeAccess::resolve(data), (ResolvedBookmark{folder, true}));
        fs::remove(folder);
        std::ofstream(folder).close();
        EXPECT_EQ(VolumeAccess::resolve(data), (ResolvedBookmark{folder, true}));
        fs::remove(folder);
        fs::rename(parent.path() / "elsewhere", folder);
        EXPECT_EQ(VolumeAccess::resolve(data), (ResolvedBookmark{folder, false}));
    }
    EXPECT_EQ(VolumeAccess::resolve(VolumeAccess::bookmark(".")).url, fs::absolute("."));
}

TEST(Bookmark, RefusesFilesAndInvalidData) {
    const test::TemporaryFolder parent;
    std::ofstream(parent.path() / "file").close();
    for (const fs::path& none : {parent.path() / "none", parent.path() / "file", fs::path()})
        EXPECT_THROW(VolumeAccess::bookmark(none), std::system_error) << none;

    const BookmarkData good = VolumeAccess::bookmark(parent.path());
    const auto pathAt = good.find("\n/");
    for (std::size_t length = 0; length <= pathAt + 1; ++length)
        EXPECT_THROW(VolumeAccess::resolve(good.substr(0, length)), std::system_error) << length;
    for (const std::string bad :
         {"ondel-bookmark-1\n-1 2\n/tmp", "ondel-bookmark-1\n1 99999999999999999999\n/tmp",
          "ondel-bookmark-1\n1  2\n/tmp", "ondel-bookmark-1\n1 2\ntmp", "ondel-bookmark-2\n1 2\n/tmp"})
        EXPECT_THROW(VolumeAccess::resolve(bad), std::system_error) << bad;
    EXPECT_THROW(VolumeAccess::resolve(good + '\0' + "x"), std::system_error);
}

TEST(WithAccess, ReleasesOnlyAcquiredAccess) {
    for (const auto& [isGiven, throws] :
         {std::pair{true, false}, {true, true}, {false, false}, {false, true}}) {
        std::string events;
        const auto start = [&, isGiven = isGiven](const fs::path& folder) {
            events += "start " + folder.string() + ' ';
            return isGiven;
        };
        const FolderAccess rights{.start = start, .stop = [&](const fs::path&) { events += "stop"; }};
        const auto body = [&, throws = throws] {
            events += "body ";
            if (throws)
                throw std::runtime_error("body failed");
            return 42;
        };
        if (throws)
            EXPECT_THROW(VolumeAccess::withAccess("/x", body, rights), std::runtime_error);
        else
            EXPECT_EQ(VolumeAccess::withAccess("/x", body, rights), 42);
        EXPECT_EQ(events, isGiven ? "start /x body stop" : "start /x body ");
    }
    bool ran = false;
    VolumeAccess::withAccess("/", [&] { ran = true; });
    EXPECT_TRUE(ran);
}

TEST(FileUrl, KeepsTheBytesOfLocalPaths) {
    const struct {
        std::string url;
        std::optional<std::filesystem::path> path;
    } cases[] = {
        {"file:///tmp/a%20b%C3%A4", "/tmp/a bä"},
        {"file:///tmp/%ff%5c", "/tmp/\xff\\"}, // invalid UTF-8
        {"file:///tmp/a?b#c", "/tmp/a"},
        {"file://localhost/tmp", "/tmp"},
        {"file://elsewhere.invalid/tmp", std::nullopt},
        {"file:///tmp/%00", std::nullopt},
        {"file:tmp", std::nullopt},
        {"https://example.invalid/tmp", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(localPath(each.url), each.path) << each.url;
        EXPECT_EQ(localPath(QUrl::fromEncoded(QByteArray::fromStdString(each.url))), each.path) << each.url;
        if (each.path) {
            EXPECT_EQ(localPath(fileUrl(*each.path)), each.path) << each.url;
        }
    }
}

} // namespace
