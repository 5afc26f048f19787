#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/report/BugReporter.h"
#include "OndelCore/logging/Redact.h"
#include "support/HttpsServer.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace OndelAppSupport;
using test::HttpsServer;
using Ending = HttpsServer::Answer::Ending;

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

TEST(Submission, SendsAnEmptySecretWhenTheBuildHasNone) {
    HttpsServer server;
    auto unconfigured = service(server.url());
    unconfigured.secret.clear();
    EXPECT_EQ(outcome(BugReporter::submit({}, unconfigured)), refusal(QString(rejected).arg(404)));
    ASSERT_TRUE(server.requests().value(0).headers.contains("x-ondel-app-secret"));
    EXPECT_EQ(server.requests().value(0).headers.value("x-ondel-app-secret"), "");
    EXPECT_EQ(BugReporter::Service::maker().endpoint, BugReporter::endpoint());
}
