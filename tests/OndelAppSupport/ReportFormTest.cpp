#include "OndelAppSupport/report/ReportForm.h"

#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/report/Diagnostics.h"
#include "OndelCore/logging/LogStore.h"
#include "OndelCore/logging/Redact.h"
#include "support/TemporaryFolder.h"

#include <QCoreApplication>
#include <QFile>
#include <QPromise>

#include <gtest/gtest.h>

#include <fstream>

using namespace OndelAppSupport;
using OndelCore::logging::LogStore;
using OndelCore::logging::Redact;

namespace {

/// A form with a service whose answers the test chooses.
struct Desk {
    QList<BugReporter::Report> submitted;
    QPromise<void> answer;
    int snapshots = 0;
    ReportForm form{
        ReportForm::Surroundings{.submit =
                                     [this](const BugReporter::Report& report) {
                                         submitted.append(report);
                                         answer = QPromise<void>();
                                         answer.start();
                                         return answer.future();
                                     },
                                 .snapshot = [this] { return QString("snapshot %1").arg(++snapshots); }}};

    Desk() {
        form.setSummary("sum");
        form.setDetails("words");
    }
    void finish(const std::optional<ReportError>& error = {}) {
        if (error)
            answer.setException(std::make_exception_ptr(*error));
        answer.finish();
        QCoreApplication::processEvents();
    }
};

} // namespace

TEST(ReportForm, RequiresThreeAndFiveCharacters) {
    const struct {
        QString summary, details;
        bool canSend;
    } table[] = {
        {"abc", "abcde", true},
        {"ab ", "abcde", false},
        {" \t ab\t ", "abcde", false},
        {"a b", "abcde", true},
        {"abc", "\u00a0abcd\u3000", false},
        {"abc", "abcd\n", true}, // a line break is not trimmed
        {"a\u0301b\u0301", "abcde", false},
        {"👩‍👩‍👧‍👦👍🏽é", "abcde", true},
        {"👩‍👩‍👧‍👦👍🏽", "abcde", false},
        {"", "", false},
    };
    for (const auto& [summary, details, canSend] : table) {
        ReportForm form;
        form.setSummary(summary);
        form.setDetails(details);
        EXPECT_EQ(form.canSend(), canSend) << summary.toStdString() << "|" << details.toStdString();
    }
}

TEST(ReportForm, SendsWhatThePreviewShows) {
    Desk desk;
    const QString file = desk.form.writePreview();
    EXPECT_EQ(test::contentOf(file.toStdString()), "snapshot 1");
    desk.form.setAttachDiagnostics(true);
    desk.form.send();
    desk.finish(ReportError(ReportError::Network()));
    desk.form.send();
    desk.finish();
    ASSERT_EQ(desk.submitted.size(), 2);
    for (const BugReporter::Report& report : desk.submitted)
        EXPECT_EQ(report.diagnostics, "snapshot 1");
}

TEST(ReportForm, SendsDiagnosticsOnlyWhenChosen) {
    Desk desk;
    desk.form.diagnosticsText();
    desk.form.send();
    desk.finish(ReportError(ReportError::Network()));
    desk.form.setAttachDiagnostics(true);
    desk.form.setFeature(true);
    desk.form.send();
    ASSERT_EQ(desk.submitted.size(), 2);
    EXPECT_EQ(desk.submitted[0].diagnostics, std::nullopt);
    EXPECT_EQ(desk.submitted[1].diagnostics, std::nullopt);
}

TEST(ReportForm, KeepsTheTextUntilItIsSent) {
    Desk desk;
    desk.form.setEmail("a@b.example");
    desk.form.send();
    EXPECT_TRUE(desk.form.isSubmitting());
    EXPECT_FALSE(desk.form.canSend());
    desk.form.send();
    EXPECT_EQ(desk.submitted.size(), 1);

    desk.finish(ReportError(ReportError::Server{"Busy."}));
    EXPECT_FALSE(desk.form.isSubmitting());
    EXPECT_FALSE(desk.form.isSent());
    EXPECT_TRUE(desk.form.hasFailed());
    EXPECT_EQ(desk.form.errorText(), "Busy.");
    EXPECT_EQ(desk.form.summary() + desk.form.details() + desk.form.email(), "sumwordsa@b.example");

    desk.form.send();
    EXPECT_FALSE(desk.form.hasFailed());
    desk.finish();
    EXPECT_TRUE(desk.form.isSent());
    EXPECT_EQ(desk.submitted[0], desk.submitted[1]);
}

TEST(ReportForm, CancelsTheSubmissionWhenDestroyed) {
    QPromise<void> answer;
    answer.start();
    {
        ReportForm form({.submit = [&](const auto&) { return answer.future(); }});
        form.setSummary("sum");
        form.setDetails("words");
        form.send();
    }
    EXPECT_TRUE(answer.isCanceled());
    answer.finish();
}

TEST(ReportForm, RestoresTheTextOfAnUnsentReport) {
    namespace fs = std::filesystem;
    const test::TemporaryFolder folder;
    const auto text = [](const ReportForm& form) {
        return form.summary() + "|" + form.details() + "|" + form.email() + (form.isFeature() ? "|wish" : "");
    };
    QPromise<void> sent;
    sent.start();
    sent.finish();
    const ReportForm::Surroundings here{.submit = [&](const auto&) { return sent.future(); },
                                        .draft = ReportDraft(folder.path())};
    ReportForm typed(here);
    typed.keepDraft();
    EXPECT_TRUE(fs::is_empty(folder.path())) << "a draft of a form without text";
    typed.setFeature(true);
    typed.setDetails("Grüße\n2");
    typed.setAttachDiagnostics(true);
    typed.keepDraft();
    const fs::path file = fs::directory_iterator(folder.path())->path();
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);

    ReportForm next(here);
    EXPECT_EQ(text(next), "|Grüße\n2||wish");
    EXPECT_FALSE(next.attachDiagnostics());
    EXPECT_TRUE(fs::is_empty(folder.path()));
    next.setSummary("sum");
    next.send();
    QCoreApplication::processEvents();
    ASSERT_TRUE(next.isSent());
    next.keepDraft();
    EXPECT_TRUE(fs::is_empty(folder.path())) << "a draft of a report that was sent";
    for (const char* damage : {"", "[1]", "{\"details\": 5"}) {
        std::ofstream(file) << damage;
        EXPECT_EQ(text(ReportForm(here)), "||");
    }
}

TEST(Diagnostics, ContainTheMachineAndTheNewestLines) {
    LogStore::shared().clear();
    for (int i = 0; i < 2000; ++i)
        LogStore::shared().append(OndelCore::logging::LogLevel::notice, "app", "line " + std::to_string(i));
    Diagnostics::extraHeader = [] { return QStringList{"Extra: 1"}; };
    Redact::detail = Redact::Detail::full;
    const QString text = Diagnostics::snapshot();
    Diagnostics::extraHeader = [] { return QStringList(); };
    Redact::detail = Redact::Detail::redacted;

    const QString head = AppIdentity::current().name + " " + BugReporter::appVersion() + " · " +
                         BugReporter::osVersion() + " · " + BugReporter::architecture() +
                         "\nHardware: " + BugReporter::hardwareSummary() + "\nLocale: C\nExtra: 1\n" +
                         "NOTE: ONDEL_LOG_FULL is set. This log is NOT redacted." +
                         "\n\n---- recent activity ----\n";
    EXPECT_EQ(text, head + QString::fromStdString(LogStore::shared().snapshot(30000)) + "\n");
    EXPECT_TRUE(text.endsWith("line 1999\n"));
    EXPECT_FALSE(Diagnostics::snapshot().contains("NOTE"));
    LogStore::shared().clear();
    EXPECT_TRUE(Diagnostics::snapshot().endsWith("C\n\n---- recent activity ----\n\n"));
}

TEST(Diagnostics, AreWrittenToAPrivateFile) {
    namespace fs = std::filesystem;
    const auto file = Diagnostics::writeForPreview("Größe");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->filename(), "Ondel Tarnwick Diagnostics.txt");
    EXPECT_EQ(fs::status(*file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(test::contentOf(*file), "Größe");

    const test::TemporaryFolder folder;
    fs::create_directories(folder.path() / "Ondel Tarnwick Diagnostics.txt" / "in the way");
    for (const std::optional<fs::path>& place : {std::optional(folder.path()), std::optional<fs::path>()}) {
        LogStore::shared().clear();
        EXPECT_EQ(Diagnostics::writeForPreview("text", place), std::nullopt);
        EXPECT_NE(LogStore::shared().snapshot(1000).find("error  app  diagnostics preview failed error=\""),
                  std::string::npos);
    }
}
