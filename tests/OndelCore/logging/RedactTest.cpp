#include "OndelCore/logging/Redact.h"

#include "OndelCore/benchmark/BenchmarkError.h"

#include <QCryptographicHash>
#include <QUuid>

#include <gtest/gtest.h>

#include <filesystem>
#include <future>

using namespace OndelCore::logging;
using OndelCore::benchmark::BenchmarkError;

namespace {

std::string tokenOf(const std::string& value) {
    const QByteArray salted = QByteArray::fromStdString(Redact::salt() + ":" + value);
    return QCryptographicHash::hash(salted, QCryptographicHash::Sha256).toHex().first(6).toStdString();
}

} // namespace

TEST(Redact, KeepsTheShapeOfPathsWithoutNames) {
    const std::string tooLong(256, 'x');
    const struct {
        std::string path;
        std::string before, after; // before and after the token
    } cases[] = {
        {"/Users/ann/My Files/report.final.pdf", "/1/2/3/«", "».pdf len=36 name=16"},
        {"file.txt", "/«", "».txt len=8 name=8"},
        {"//a///b.tar.gz//", "/1/«", "».gz len=16 name=8"},
        {"/x/.my file", "/1/«", "» len=11 name=8 flags=space,hidden"},
        {".hidden", "/«", "» len=7 name=7 flags=hidden"},
        {"end.", "/«", "» len=4 name=4 flags=trailingdot"},
        {"..", "/«", "» len=2 name=2 flags=hidden,trailingdot"},
        {"a.abcdefghijkl", "/«", "».abcdefghijkl len=14 name=14"},
        {"a.abcdefghijklm", "/«", "» len=15 name=15"},
        {"a.tar-gz", "/«", "» len=8 name=8"},
        {"a.ä", "/«", "» len=3 name=3 flags=nonascii"},
        {"/é/e\u0301.PNG", "/1/«", "».PNG len=8 name=5 flags=nonascii"},
        {"👨‍👩‍👧‍👦🇩🇪", "/«", "» len=2 name=2 flags=nonascii"},
        {"a\r\nb", "/«", "» len=3 name=3 flags=newline"},
        {"a\u2028b", "/«", "» len=3 name=3 flags=nonascii,newline"},
        {tooLong, "/«", "» len=256 name=256 flags=overlong"},
        {"/a\xff\xfe/b\xff.c", "/1/«", "».c len=9 name=4 flags=nonascii"},
    };
    for (const auto& [path, before, after] : cases)
        EXPECT_EQ(Redact::path(path), before + tokenOf(path) + after);
    EXPECT_EQ(Redact::path(""), "/");
    EXPECT_EQ(Redact::path("///"), "/");
    EXPECT_EQ(Redact::opaque("serial"), "#" + tokenOf("serial"));
    EXPECT_FALSE(QUuid::fromString(QString::fromStdString(Redact::salt())).isNull());
}

TEST(Redact, NamesErrorsWithoutTheirPayload) {
    const auto of = [](const auto& error) { return Redact::failure(std::make_exception_ptr(error)); };
    EXPECT_EQ(of(BenchmarkError(BenchmarkError::InsufficientSpace{5, 3})),
              "BenchmarkError.insufficientSpace OndelCore.BenchmarkError/0");
    EXPECT_EQ(of(BenchmarkError(BenchmarkError::Io{"write: /home/ann"})),
              "BenchmarkError.io OndelCore.BenchmarkError/1");
    EXPECT_EQ(of(BenchmarkError(BenchmarkError::FileTooSmallForRandom{})),
              "BenchmarkError.fileTooSmallForRandom OndelCore.BenchmarkError/3");
    EXPECT_EQ(of(OndelCore::benchmark::Cancelled()), "Cancelled OndelCore.Cancelled/1");
    EXPECT_EQ(of(std::system_error(EACCES, std::system_category(), "/home/ann")),
              "system_error posix=13 (Permission denied)");
    EXPECT_EQ(
        of(std::filesystem::filesystem_error("x", "/home/ann", std::error_code(2, std::generic_category()))),
        "filesystem_error posix=2 (No such file or directory)");
    EXPECT_EQ(of(std::system_error(4711, std::generic_category())),
              "system_error posix=4711 (Unknown error 4711)");
    EXPECT_EQ(of(std::system_error(std::make_error_code(std::future_errc::no_state))),
              "system_error future/" + std::to_string(static_cast<int>(std::future_errc::no_state)));
    EXPECT_EQ(of(std::runtime_error("/home/ann")), "runtime_error std::runtime_error/1");
    EXPECT_EQ(of(42), "unknown");
}
