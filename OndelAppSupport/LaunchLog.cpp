#include "OndelAppSupport/LaunchLog.h"

#include "OndelAppSupport/report/BugReporter.h"
#include "OndelCore/logging/LogScrubber.h"
#include "OndelCore/logging/LogStore.h"
#include "OndelCore/platform/process/DetachedThread.h"
#include "OndelCore/platform/process/StandardFolders.h"

#include <chrono>
#include <future>
#include <string>
#include <utility>

namespace OndelAppSupport {

using OndelCore::logging::Log;
using OndelCore::logging::LogField;
using OndelCore::logging::LogOutput;

std::optional<std::filesystem::path> logFolder() {
    const auto state = OndelCore::platform::stateHome();
    return state ? std::optional(*state / "Ondel Tarnwick") : std::nullopt;
}

void prepareLogging() {
    OndelCore::platform::runDetached([] {
        std::string line;
        for (const QString& text : {BugReporter::appVersion(), BugReporter::osVersion(),
                                    BugReporter::architecture(), BugReporter::hardwareModel()})
            line += text.toStdString() + ' ';
        LogOutput::shared().scrubber.scrub(line);
    });
}

void startLogging(const LogOutput& output) {
    if (const auto folder = logFolder())
        output.store.startFileLogging(folder);
    const Log app("app", &output);
    app.notice("launched", LogField::token("version", BugReporter::appVersion()),
               LogField::token("os", BugReporter::osVersion()),
               LogField::token("arch", BugReporter::architecture()),
               LogField::token("model", BugReporter::hardwareModel()),
               LogField::bool_("reportingConfigured", BugReporter::isConfigured()));
}

void endLogging() {
    std::packaged_task<void()> flush([] { OndelCore::logging::LogStore::shared().flush(); });
    const auto flushed = flush.get_future();
    if (OndelCore::platform::runDetached(std::move(flush)))
        flushed.wait_for(std::chrono::seconds(1));
}

} // namespace OndelAppSupport
