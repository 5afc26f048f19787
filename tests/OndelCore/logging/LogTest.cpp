#include "CapturedLog.h"
#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/benchmark/BenchmarkTest.h"
#include "OndelCore/logging/Redact.h"

#include <QCryptographicHash>
#include <QString>
#include <QUuid>

#include <algorithm>
#include <array>
#include <clocale>
#include <future>
#include <limits>
#include <thread>
#include <vector>

using namespace OndelCore::logging;
using OndelCore::benchmark::BenchmarkError;

namespace {

enum class Connection { internal };
std::string_view logToken(Connection) { return "Internal SSD"; }

} // namespace

TEST(Log, RendersEachKindOfField) {
    std::setlocale(LC_NUMERIC, "de_DE.UTF-8"); // durations have a full stop in every locale
    const struct {
        LogField field;
        const char* text;
    } cases[] = {
        {LogField::int_("n", -5), "n=-5"},
        {LogField::bytes("size", std::numeric_limits<std::int64_t>::max()), "size=9223372036854775807"},
        {LogField::ms("took", 12.34), "took=12.3ms"},
        {LogField::ms("took", -0.04), "took=-0.0ms"},
        {LogField::ms("took", std::numeric_limits<double>::infinity()), "took=infms"},
        {LogField::bool_("shown", false), "shown=false"},
        {LogField::token("fs", "ext4"), "fs=ext4"},
        {LogField::token("test", OndelCore::benchmark::BenchmarkTest::fileOps), "test=fileOps"},
        {LogField::token("connection", Connection::internal), "connection=Internal SSD"},
        {LogField::token("os", QStringLiteral("Größe")), "os=Größe"},
        {LogField::classified("text", "a \"quoted\" text"), "text=\"a \"quoted\" text\""},
        {LogField::failure(std::system_error(28, std::generic_category(), "/home/ann/x")),
         "error=\"system_error posix=28 (No space left on device)\""},
        {LogField::token("path", "/home/ann/x"), "path=«path» scrubbed=1"},
        {LogField::classified("path", "ask bob@example.com"), "path=\"ask «email»\" scrubbed=1"},
        {LogField::token("bytes", std::string_view("\xff\xc3(\0\xed\xa0\x80", 7)), nullptr},
    };
    test::CapturedLog captured;
    for (const auto& [field, text] : cases) {
        captured.log().notice("line", field);
        const std::string body = captured.takeBody();
        if (text)
            EXPECT_EQ(body, std::string("line ") + text);
        else // invalid UTF-8 is replaced, and a NUL does not truncate
            EXPECT_EQ(body, std::string("line bytes=\ufffd\ufffd(\0\ufffd\ufffd\ufffd", 5 + 6 + 6 + 2 + 9));
    }
    std::setlocale(LC_NUMERIC, "C");
}

TEST(Log, WritesMessageAndFieldsAtTheRequestedLevelAndDetail) {
    test::CapturedLog captured;
    captured.log().notice("launched");
    EXPECT_EQ(captured.takeBody(), "launched");
    captured.log().log(Log::Level::fault, "two", std::array{LogField::int_("a", 1), LogField::int_("b", 2)});
    EXPECT_NE(captured.store().snapshot(1000).find("  fault  test  two a=1 b=2"), std::string::npos);
    EXPECT_EQ(captured.takeBody(), "two a=1 b=2");

    captured.log().debug("dropped", LogField::int_("a", 1));
    EXPECT_EQ(captured.takeBody(), "");
    Log::minimumLevel = Log::Level::error;
    captured.log().notice("dropped");
    EXPECT_EQ(captured.takeBody(), "");
    captured.log().error("kept");
    EXPECT_EQ(captured.takeBody(), "kept");
    Log::minimumLevel = Log::Level::notice;

    Redact::detail = Redact::Detail::full;
    captured.log().notice("line", LogField::name("path", "/home/ann/x"), LogField::opaque("id", "abc"));
    Redact::detail = Redact::Detail::redacted;
    EXPECT_EQ(captured.takeBody(), "line path=/home/ann/x id=abc");

    const std::string dots(10'000'000, '.');
    captured.log().notice("line", LogField::token("text", dots + " /home/ann/x"));
    EXPECT_TRUE(captured.takeBody() == "line text=" + dots + " «path» scrubbed=1");
}

TEST(Log, IsThreadSafe) {
    test::CapturedLog captured({"annika", std::nullopt, std::nullopt, std::nullopt});
    std::vector<std::jthread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&captured] {
            for (int i = 0; i < 500; ++i)
                captured.log().notice("line", LogField::name("path", "/é/annika.txt"),
                                      LogField::token("text", "annika@example.com 10.0.0.1"));
        });
    threads.clear();
    captured.store().flush();
    const std::string text = test::contentOf(captured.file());
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2000);
    EXPECT_EQ(text.find("annika"), std::string::npos);
}

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
