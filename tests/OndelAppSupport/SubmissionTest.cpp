#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/LaunchLog.h"
#include "OndelAppSupport/report/BugReporter.h"
#include "OndelCore/logging/LogScrubber.h"
#include "OndelCore/logging/LogStore.h"
#include "OndelCore/logging/Redact.h"
#include "OndelCore/platform/process/UnifiedLog.h"
#include "support/HttpsServer.h"
#include "support/TemporaryFolder.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

using namespace OndelAppSupport;
using test::HttpsServer;
using Ending = HttpsServer::Answer::Ending;
using namespace OndelCore::logging;

namespace {

constexpr auto rejected = "The server rejected the report (%1).";
const QString secret = "tell-nobody";

BugReporter::Service service(const QUrl& endpoint) {
    return {.endpoint = endpoint, .secret = secret, .authorities = HttpsServer::authorities()};
}

std::optional<ReportError::Cause> outcome(QFuture<void> submission) {
    while (!submission.isFinished())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    try {
        submission.waitForFinished();
        return std::nullopt;
    } catch (const ReportError& error) {
        EXPECT_FALSE(error.localizedDescription().contains(secret));
        return error.cause();
    }
}

std::optional<ReportError::Cause> refusal(const QString& text) { return ReportError::Server{text}; }

bool isTransportError(const std::optional<ReportError::Cause>& cause) {
    const auto* transport = cause ? std::get_if<ReportError::Transport>(&*cause) : nullptr;
    return transport && !transport->text.isEmpty();
}

} // namespace

TEST(Payload, HasDiagnosticsOnlyInBugReportsThatAttachThem) {
    BugReporter::Report report;
    report.summary = " as typed ";
    report.email = "a@b.example";
    report.diagnostics = "log";
    const QVariantMap plain{{"app", AppIdentity::current().reportID},
                            {"type", "bug"},
                            {"summary", " as typed "},
                            {"details", ""},
                            {"email", "a@b.example"},
                            {"appVersion", BugReporter::appVersion()},
                            {"osVersion", BugReporter::osVersion()},
                            {"hardware", BugReporter::hardwareSummary()}};
    EXPECT_EQ(BugReporter::payload(report), plain);
    report.attachDiagnostics = true;
    EXPECT_EQ(BugReporter::payload(report).value("diagnostics"), "log");
    report.isFeature = true;
    EXPECT_EQ(BugReporter::payload(report).value("type"), "feature");
    EXPECT_FALSE(BugReporter::payload(report).contains("diagnostics"));
    report.isFeature = false;
    report.diagnostics.reset();
    EXPECT_FALSE(BugReporter::payload(report).contains("diagnostics"));
}

TEST(Submission, HandlesEveryAnswer) {
    const HttpsServer elsewhere;
    const QByteArray location = elsewhere.url().toEncoded();
    const QByteArray huge = R"({"error": "huge", "padding": ")" + QByteArray(1 << 20, 'x') + "\"}";
    const struct {
        HttpsServer::Answer answer;
        std::optional<ReportError::Cause> expected;
    } table[] = {
        {{200, "{\"error\": \"ignored\"}", {}}, {}},
        {{200, {}, {}, Ending::cut}, {}},
        {{200, {}, {}, Ending::silence}, {}},
        {{200, {}, {}, Ending::endless}, {}},
        {{201, {}, {}}, refusal(QString(rejected).arg(201))},
        {{302, {}, {{"Location", location}}}, refusal(QString(rejected).arg(302))},
        {{307, {}, {{"Location", location}}}, refusal(QString(rejected).arg(307))},
        {{401, {}, {{"WWW-Authenticate", "Basic realm=x"}}}, refusal(QString(rejected).arg(401))},
        {{400, "{\"error\": \" <b>Größe</b>\\n \"}", {}}, refusal(" <b>Größe</b>\n ")},
        {{500, R"({"error": 5})", {}}, refusal(QString(rejected).arg(500))},
        {{500, R"(["error", "text"])", {}}, refusal(QString(rejected).arg(500))},
        {{500, "<html>error</html>", {}}, refusal(QString(rejected).arg(500))},
        {{500, huge, {}}, refusal(QString(rejected).arg(500))},
        {{503, {}, {}, Ending::endless}, refusal(QString(rejected).arg(503))},
    };
    for (const auto& [answer, expected] : table) {
        HttpsServer server;
        server.script("/api/report", answer);
        BugReporter::Report report;
        report.details = "Größe \"1\"\n" + QString(300'000, 'x'); // more than one write to the socket
        EXPECT_EQ(outcome(BugReporter::submit(report, service(server.url("/api/report")))), expected)
            << answer.status << " " << answer.body.left(40).toStdString();
        ASSERT_EQ(server.requests().size(), 1);
        const HttpsServer::Request& request = server.requests().first();
        EXPECT_EQ(request.method, "POST");
        EXPECT_EQ(request.headers.value("content-type"), "application/json");
        EXPECT_EQ(request.headers.value("x-ondel-app-secret"), secret.toUtf8());
        EXPECT_FALSE(request.body.contains(secret.toUtf8()));
        EXPECT_EQ(QJsonDocument::fromJson(request.body).object().toVariantMap(),
                  BugReporter::payload(report));
    }
    EXPECT_EQ(elsewhere.connections(), 0);
}

TEST(Submission, SendsAnEmptySecretWhenTheBuildHasNone) {
    HttpsServer server;
    auto unconfigured = service(server.url());
    unconfigured.secret.clear();
    EXPECT_EQ(outcome(BugReporter::submit({}, unconfigured)), refusal(QString(rejected).arg(404)));
    ASSERT_TRUE(server.requests().value(0).headers.contains("x-ondel-app-secret"));
    EXPECT_EQ(server.requests().value(0).headers.value("x-ondel-app-secret"), "");
}

TEST(Submission, ReportsTheSystemsErrorWithoutAnAnswer) {
    for (const HttpsServer::Answer& answer :
         {HttpsServer::Answer{0, {}, {}, Ending::cut}, {500, "{\"error\": \"cut", {}, Ending::cut}}) {
        HttpsServer server;
        server.script("/", answer);
        EXPECT_TRUE(isTransportError(outcome(BugReporter::submit({}, service(server.url())))));
        EXPECT_EQ(server.requests().size(), 1) << "a report is not repeated";
    }
    for (const int status : {0, 500}) {
        HttpsServer server;
        server.script("/", {status, {}, {}, Ending::silence});
        auto impatient = service(server.url());
        impatient.limit = std::chrono::milliseconds(300);
        EXPECT_EQ(outcome(BugReporter::submit({}, impatient)),
                  ReportError::Cause(ReportError::Transport{"Connection timed out"}));
    }
    QUrl nobody;
    {
        nobody = HttpsServer().url();
    }
    EXPECT_TRUE(isTransportError(outcome(BugReporter::submit({}, service(nobody)))));
}

TEST(Submission, LimitsTheSizeOfAnAnswer) {
    for (const auto& [status, ending] : {std::pair(200, Ending::endlessHead),
                                         {500, Ending::endlessHead},
                                         {500, Ending::endlessLine},
                                         {500, Ending::endlessTrailers},
                                         {100, Ending::endlessInterim},
                                         {500, Ending::endless}}) {
        HttpsServer server;
        server.script("/", {status, "x", {}, ending});
        const auto end = outcome(BugReporter::submit({}, service(server.url())));
        EXPECT_EQ(isTransportError(end), ending != Ending::endless);
        EXPECT_LT(server.sentBytes(), 16 << 20);
    }
}

TEST(Submission, SendsTheSecretToTheServiceAlone) {
    const HttpsServer unknown;
    auto careful = service(unknown.url());
    careful.authorities.reset();
    EXPECT_TRUE(isTransportError(outcome(BugReporter::submit({}, careful))));

    const HttpsServer another(HttpsServer::Certificate::forAnotherHost);
    EXPECT_TRUE(isTransportError(outcome(BugReporter::submit({}, service(another.url())))));

    QUrl plain = unknown.url();
    plain.setScheme("http");
    EXPECT_EQ(outcome(BugReporter::submit({}, service(plain))), ReportError::Cause(ReportError::Network()));
    EXPECT_EQ(ReportError(ReportError::Network()).localizedDescription(),
              "Couldn’t reach the server. Check your connection and try again.");
    EXPECT_EQ(OndelCore::logging::Redact::failure(ReportError(ReportError::Server{secret})),
              "ReportError.server OndelAppSupport.ReportError/0");
    EXPECT_TRUE(unknown.requests().isEmpty());
    EXPECT_TRUE(another.requests().isEmpty());
}

namespace {

struct Root {
    test::TemporaryFolder folder;

    void write(const std::string& file, const std::string& text) const {
        std::filesystem::create_directories((folder.path() / file).parent_path());
        std::ofstream(folder.path() / file) << text;
    }
};

} // namespace

TEST(BugReporter, ReadsTheBuild) {
    const auto dictionary = [](const QVariantMap& values) { return InformationDictionary(values); };
    const QString version = "CFBundleShortVersionString", number = "CFBundleVersion",
                  secret = "OndelReportSecret";
    EXPECT_EQ(BugReporter::appVersion(dictionary({{version, "2.0"}, {number, "7"}})), "2.0 (7)");
    EXPECT_EQ(BugReporter::appVersion(dictionary({{version, "2.0"}})), "2.0 (?)");
    EXPECT_EQ(BugReporter::appVersion(dictionary({{version, 2.0}, {number, QVariant()}})), "? (?)");
    EXPECT_FALSE(BugReporter::appVersion().contains(u'?'));
    EXPECT_FALSE(BugReporter::isConfigured(dictionary({})));
    EXPECT_FALSE(BugReporter::isConfigured(dictionary({{secret, QString()}})));
    EXPECT_FALSE(BugReporter::isConfigured(dictionary({{secret, 5}})));
    EXPECT_TRUE(BugReporter::isConfigured(dictionary({{secret, "s"}})));
}

TEST(BugReporter, ReadsTheSystem) {
    const Root nothing;
    EXPECT_EQ(BugReporter::osVersion(nothing.folder.path()), "Linux");
    EXPECT_EQ(BugReporter::hardwareModel(nothing.folder.path()), "unknown");
    EXPECT_EQ(BugReporter::chip(nothing.folder.path()), "unknown");
    EXPECT_GT(BugReporter::memoryGB(nothing.folder.path()), 0) << "from the kernel";

    const Root root;
    const auto& path = root.folder.path();
    root.write("usr/lib/os-release", "NAME=x\nPRETTY_NAME='Some Linux 7'\n");
    EXPECT_EQ(BugReporter::osVersion(path), "Some Linux 7");
    root.write("etc/os-release", "XPRETTY_NAME=no\nPRETTY_NAME=\"The \\\"Quoted\\\" Größe\"\nID=x\n");
    EXPECT_EQ(BugReporter::osVersion(path), "The \"Quoted\" Größe");
    root.write("run/host/os-release", "PRETTY_NAME=Host\n");
    EXPECT_EQ(BugReporter::osVersion(path), "Host") << "and not what a sandbox has";
    root.write("sys/class/dmi/id/product_name", "To Be Filled By O.E.M.\n");
    EXPECT_EQ(BugReporter::hardwareModel(path), "unknown");
    root.write("proc/device-tree/model", std::string("Board 5\0", 8));
    EXPECT_EQ(BugReporter::hardwareModel(path), "Board 5");
    root.write("sys/class/dmi/id/product_name", "  Desktop 3000 \n");
    root.write("proc/cpuinfo",
               "processor\t: 0\nmodel\t\t: 1\nmodel name\t: Fast CPU @ 3 GHz\nmodel name\t: other\n");
    root.write("sys/devices/system/memory/block_size_bytes", "c0000000\n"); // 3 GiB
    for (const char* block : {"memory0", "memory1", "memory7", "memory9"})
        root.write(std::string("sys/devices/system/memory/") + block + "/online", "1\n");
    root.write("sys/devices/system/memory/memory8/online", "0\n");
    EXPECT_EQ(BugReporter::memoryGB(path), 12);
    EXPECT_EQ(BugReporter::hardwareSummary(path), "Desktop 3000 · Fast CPU @ 3 GHz · 12 GB");
    root.write("sys/devices/system/memory/block_size_bytes", "8000000\n"); // half a GiB in all
    EXPECT_EQ(BugReporter::memoryGB(path), 1);
}

TEST(LaunchLog, WritesVersionAndSystemFirst) {
    const auto store = LogStore::makeForTesting(10);
    const LogScrubber scrubber(OndelCore::platform::UserFacts{});
    const OndelCore::platform::UnifiedLog noJournal("/nonexistent");
    const LogOutput output{*store, scrubber, noJournal};
    startLogging(output);
    store->flush();

    std::ifstream file(std::filesystem::path(getenv("XDG_STATE_HOME")) / "Ondel Tarnwick" / "ondel.log");
    std::string line;
    ASSERT_TRUE(std::getline(file, line));
    const QString body =
        QStringLiteral("  notice  app  launched version=%1 os=%2 arch=%3 model=%4 reportingConfigured=%5")
            .arg(BugReporter::appVersion(), BugReporter::osVersion(), BugReporter::architecture(),
                 BugReporter::hardwareModel(),
                 BugReporter::isConfigured() ? QStringLiteral("true") : QStringLiteral("false"));
    EXPECT_EQ(line.substr(23), body.toStdString());
}
