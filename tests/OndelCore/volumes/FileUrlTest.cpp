#include "OndelCore/volumes/FileUrl.h"

#include <gtest/gtest.h>

namespace OndelCore::volumes {

namespace {

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

} // namespace OndelCore::volumes
