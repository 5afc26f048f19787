#include "OndelAppSupport/LaunchLog.h"

#include "OndelAppSupport/report/BugReporter.h"
#include "OndelCore/logging/LogScrubber.h"
#include "OndelCore/logging/LogStore.h"
#include "OndelCore/platform/process/UnifiedLog.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

using namespace OndelCore::logging;
using OndelAppSupport::BugReporter;

TEST(LaunchLog, WritesVersionAndSystemFirst) {
    const auto store = LogStore::makeForTesting(10);
    const LogScrubber scrubber(OndelCore::platform::UserFacts{});
    const OndelCore::platform::UnifiedLog noJournal("/nonexistent");
    const LogOutput output{*store, scrubber, noJournal};
    OndelAppSupport::startLogging(output);
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
