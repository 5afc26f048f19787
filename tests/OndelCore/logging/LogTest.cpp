#include "CapturedLog.h"
#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/benchmark/BenchmarkTest.h"
#include "OndelCore/logging/LogStore.h"
#include "OndelCore/logging/Redact.h"

#include <QCryptographicHash>
#include <QString>
#include <QUuid>

#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <clocale>
#include <future>
#include <limits>
#include <thread>
#include <vector>

using namespace OndelCore::logging;
using OndelCore::benchmark::BenchmarkError;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

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

namespace {

/// 2026-03-14 09:26:53.250 UTC, the time zone of the tests.
constexpr std::chrono::sys_time<std::chrono::milliseconds> afternoon{1773480413250ms};

struct Store {
    std::chrono::sys_time<std::chrono::nanoseconds> now = afternoon;
    std::unique_ptr<LogStore> store;

    explicit Store(std::size_t lines)
        : store(LogStore::makeForTesting(
              lines, {.now = [this] {
                  return std::chrono::time_point_cast<std::chrono::system_clock::duration>(now);
              }})) {}

    void append(const std::string& body) { store->append(LogLevel::notice, "app", body); }
};

std::size_t linesOf(const std::string& text) {
    return text.empty() ? 0 : 1 + static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

} // namespace

TEST(LogStore, StampsLines) {
    Store log(8);
    log.append("one");
    log.now += 749'999'999ns;
    log.append("two");
    log.now += 1ns;
    log.append("three");
    log.now = afternoon - 24h; // the clock was put back
    log.append("four");
    log.now = std::chrono::sys_time<std::chrono::nanoseconds>(-1ms);
    log.append("five");
    EXPECT_EQ(log.store->snapshot(10000), "2026-03-14 09:26:53.250  notice  app  one\n"
                                          "2026-03-14 09:26:53.999  notice  app  two\n"
                                          "2026-03-14 09:26:54.000  notice  app  three\n"
                                          "2026-03-13 09:26:53.250  notice  app  four\n"
                                          "1969-12-31 23:59:59.999  notice  app  five");
}

TEST(LogStore, KeepsTheNewestLines) {
    Store log(LogStore::capacity);
    EXPECT_EQ(log.store->snapshot(1 << 20), "");
    for (int i = 0; i < 2000; ++i)
        log.append("line " + std::to_string(i));
    EXPECT_EQ(linesOf(log.store->snapshot(1 << 20)), 2000u);
    EXPECT_NE(log.store->snapshot(1 << 20).find("  line 0\n"), std::string::npos);
    log.append("line 2000");
    const std::string text = log.store->snapshot(1 << 20);
    EXPECT_EQ(linesOf(text), 2000u);
    EXPECT_EQ(text.find("  line 0\n"), std::string::npos);
    EXPECT_TRUE(text.ends_with("  line 1999\n2026-03-14 09:26:53.250  notice  app  line 2000"));
    log.store->clear();
    EXPECT_EQ(log.store->snapshot(1 << 20), "");
    log.append("after");
    EXPECT_EQ(linesOf(log.store->snapshot(1 << 20)), 1u);
}

TEST(LogStore, SnapshotHasTheWholeLinesThatFit) {
    Store log(8);
    log.append("first");
    log.append("a longer line than the first");
    const std::string both = log.store->snapshot(1000);
    const std::string newest = both.substr(both.find('\n') + 1);
    const auto snapshot = [&](std::size_t bytes) {
        return log.store->snapshot(static_cast<std::int64_t>(bytes));
    };
    EXPECT_EQ(snapshot(both.size() + 1), both);
    EXPECT_EQ(snapshot(both.size()), newest);
    EXPECT_EQ(snapshot(newest.size() + 1), newest);
    EXPECT_EQ(snapshot(newest.size()), "");
    EXPECT_EQ(log.store->snapshot(0), "");
    EXPECT_EQ(log.store->snapshot(-1), "");
}

TEST(LogStore, KeepsAllLinesOfFourThreadsInOrder) {
    constexpr int perThread = 5000;
    const auto store = LogStore::makeForTesting(4 * perThread);
    std::vector<std::jthread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&store, t] {
            for (int i = 0; i < perThread; ++i) {
                store->append(LogLevel::notice, "app", std::to_string(t) + " " + std::to_string(i));
                if (i % 500 == 0)
                    store->snapshot(30000);
            }
        });
    threads.clear();

    std::map<std::string, int> next;
    const std::string text = store->snapshot(1 << 30);
    ASSERT_EQ(linesOf(text), 4u * perThread);
    for (std::size_t at = 0; at < text.size(); at = std::min(text.find('\n', at), text.size()) + 1) {
        const std::string line = text.substr(at, text.find('\n', at) - at);
        const auto number = line.rfind(' ');
        ASSERT_EQ(line.substr(number + 1), std::to_string(next[line.substr(number - 1, 1)]++));
    }
}

namespace {

std::unique_ptr<LogStore> storeWritingTo(const fs::path& folder) {
    auto store = LogStore::makeForTesting(100);
    store->startFileLogging(folder);
    return store;
}

void write(LogStore& store, const std::string& body) {
    store.append(LogLevel::notice, "app", body);
    store.flush();
}

void makeFile(const fs::path& file, std::size_t bytes) { std::ofstream(file) << std::string(bytes, 'x'); }

} // namespace

TEST(LogFile, HasTheLinesSinceItsStart) {
    const test::TemporaryFolder folder;
    const auto store = LogStore::makeForTesting(100);
    store->append(LogLevel::notice, "app", "early");
    store->startFileLogging(folder.path() / "new" / "logs");
    store->startFileLogging(folder.path() / "elsewhere");
    write(*store, "one");
    write(*store, "two");
    store->append(LogLevel::notice, "app", "cleared");
    store->clear();
    store->flush();
    const fs::path file = folder.path() / "new" / "logs" / "ondel.log";
    const std::string text = test::contentOf(file);
    EXPECT_EQ(text.find("early"), std::string::npos);
    EXPECT_EQ(text.find("cleared"), std::string::npos);
    EXPECT_NE(text.find("  one\n"), std::string::npos);
    EXPECT_TRUE(text.ends_with("  two\n"));
    EXPECT_FALSE(fs::exists(folder.path() / "elsewhere"));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);

    fs::remove(file);
    write(*store, "again");
    EXPECT_TRUE(test::contentOf(file).ends_with("  again\n"));
}

TEST(LogFile, DoesNotEndTheProcessAtTheSizeLimit) {
    const test::TemporaryFolder folder;
    const fs::path file = folder.path() / "ondel.log";
    const auto store = LogStore::makeForTesting(100, {.tick = std::chrono::milliseconds(1)});
    store->startFileLogging(folder.path());
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{.rlim_cur = 1000, .rlim_max = before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const auto awaitLine = [&](const std::string& body) {
        store->append(LogLevel::notice, "app", body);
        while (!test::contentOf(file).ends_with("  " + body + "\n"))
            std::this_thread::yield();
    };
    awaitLine("fits");
    const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(1);
    fs::last_write_time(file, longAgo);
    store->append(LogLevel::notice, "app", std::string(2000, 'x'));
    while (fs::last_write_time(file) == longAgo)
        std::this_thread::yield();
    setrlimit(RLIMIT_FSIZE, &before);
    awaitLine("fits again");
}

TEST(LogFile, RotatesAboveItsLimit) {
    const test::TemporaryFolder folder;
    const fs::path file = folder.path() / "ondel.log", old = folder.path() / "ondel.1.log";
    const auto store = storeWritingTo(folder.path());
    for (const std::size_t bytes : {1'000'000U, 1'000'001U, 1'000'002U}) {
        makeFile(file, bytes);
        write(*store, std::to_string(bytes));
        EXPECT_TRUE(test::contentOf(file).ends_with("  " + std::to_string(bytes) + "\n"));
        EXPECT_EQ(fs::exists(old), bytes > 1'000'000) << bytes;
        EXPECT_TRUE(!fs::exists(old) || fs::file_size(old) == bytes);
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 2);
}

TEST(LogFile, StaysSmallWhereItCannotRotate) {
    const test::TemporaryFolder folder;
    const fs::path file = folder.path() / "ondel.log", old = folder.path() / "ondel.1.log";
    fs::create_directories(old / "somebody's");
    const auto store = storeWritingTo(folder.path());
    for (int i = 0; i < 3; ++i) {
        makeFile(file, 1'000'001);
        write(*store, "after");
        EXPECT_LT(fs::file_size(file), 100U);
        EXPECT_TRUE(test::contentOf(file).ends_with("  after\n"));
    }
    EXPECT_TRUE(fs::exists(old / "somebody's"));
}

TEST(LogFile, LosesNoLineByRotation) {
    const test::TemporaryFolder folder;
    const auto store = storeWritingTo(folder.path());
    const std::string filling(1000, 'x');
    std::vector<std::jthread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&] {
            for (int i = 0; i < 400; ++i)
                write(*store, filling);
        });
    threads.clear();
    const std::string text =
        test::contentOf(folder.path() / "ondel.1.log") + test::contentOf(folder.path() / "ondel.log");
    EXPECT_TRUE(fs::exists(folder.path() / "ondel.1.log"));
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1600);
}

TEST(LogFile, ToleratesUnusableFolders) {
    const test::TemporaryFolder folder;
    makeFile(folder.path() / "file", 1);
    fs::create_directories(folder.path() / "taken" / "ondel.log");
    fs::create_directory(folder.path() / "pipe");
    ASSERT_EQ(mkfifo((folder.path() / "pipe" / "ondel.log").c_str(), 0600), 0);
    for (const char* name : {"file", "taken", "pipe", "/proc", "gone"}) {
        const auto store = storeWritingTo(folder.path() / name);
        fs::remove_all(folder.path() / "gone");
        write(*store, name);
        EXPECT_TRUE(store->snapshot(1000).ends_with(name));
    }
    EXPECT_EQ(test::contentOf(folder.path() / "pipe" / "ondel.log").find("20"), 0u)
        << "a file took the pipe's place";
    EXPECT_TRUE(test::contentOf(folder.path() / "gone" / "ondel.log").ends_with("  gone\n"));
    EXPECT_EQ(fs::status(folder.path() / "gone").permissions(), fs::perms::owner_all);
    EXPECT_TRUE(fs::is_empty(folder.path() / "taken" / "ondel.log"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path() / "taken"), fs::directory_iterator()), 1);
}

TEST(LogFile, HasWholeLinesOnAFullOrReadOnlyDisk) {
    const test::TemporaryFolder folder;
    if (mount("tmpfs", folder.path().c_str(), "tmpfs", 0, "size=16k") != 0)
        GTEST_SKIP() << "mounting needs root";
    {
        const fs::path file = folder.path() / "ondel.log";
        const auto store = storeWritingTo(folder.path());
        write(*store, "fits");
        const std::string before = test::contentOf(file);
        write(*store, std::string(20'000, 'x'));
        EXPECT_EQ(test::contentOf(file), before);
        fs::remove(file);
        write(*store, std::string(20'000, 'x'));
        EXPECT_TRUE(fs::is_empty(folder.path()));
        write(*store, "fits again");
        EXPECT_EQ(mount("tmpfs", folder.path().c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, "size=16k"), 0);
        write(*store, "refused");
        EXPECT_TRUE(test::contentOf(file).ends_with("  fits again\n"));
        EXPECT_TRUE(store->snapshot(100).ends_with("  refused"));
    }
    umount2(folder.path().c_str(), MNT_DETACH);
}
