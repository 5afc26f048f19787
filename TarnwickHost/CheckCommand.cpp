#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/capacity/CapacityCheck.h"
#include "TarnwickHost/Command.h"
#include "TarnwickHost/HostText.h"
#include "TarnwickHost/Output.h"
#include "TarnwickHost/Place.h"
#include "TarnwickHost/Progress.h"
#include "TarnwickHost/RunEventLoop.h"
#include "TarnwickHost/Terminal.h"
#include "TarnwickKit/model/capacity/CapacityCodec.h"
#include "TarnwickKit/model/capacity/CapacityCourse.h"
#include "TarnwickKit/model/capacity/CapacityRecord.h"
#include "TarnwickKit/model/capacity/CapacityReport.h"
#include "TarnwickKit/model/capacity/CapacityText.h"
#include "TarnwickKit/model/language/Language.h"
#include "TarnwickKit/model/session/AnalyzerModel.h"

#include <QDateTime>

#include <unistd.h>

#include <array>
#include <chrono>
#include <exception>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <stop_token>
#include <thread>

using namespace OndelCore::capacity;
using namespace TarnwickKit::model;
using OndelCore::benchmark::Cancelled;

namespace TarnwickHost {

namespace {

struct HostCheck {
    Q_DECLARE_TR_FUNCTIONS(HostCheck)
};

constexpr std::array checkOptions{
    Option{"--size", "BYTES|all",
           QT_TRANSLATE_NOOP("HostHelp", "How much to write and read back (default: all free space)")},
    Option{"--leave-free", "BYTES",
           QT_TRANSLATE_NOOP("HostHelp", "How much stays free in any case (default: 64MiB)")},
    Option{"--quick", "",
           QT_TRANSLATE_NOOP("HostHelp", "Samples across the range, in seconds: finds a false capacity, and\n"
                                         "proves nothing when it finds none")},
    Option{"--again", "S", QT_TRANSLATE_NOOP("HostHelp", "Read everything once more, S seconds later")},
    Option{"--json", "",
           QT_TRANSLATE_NOOP("HostHelp",
                             "Print one JSON object: the verdict, the sentence, and all that was found")},
};

// Above, a size is nonsense and a pause is longer than a year.
constexpr Range checkedRange{1, std::int64_t{1} << 60};
constexpr Range freeRange{0, std::int64_t{1} << 60};
constexpr double longestPause = 366 * 86400.0;

CapacityPlan askedPlan(const CommandLine& line) {
    CapacityPlan plan;
    if (const auto size = line.value("--size"); size && size != "all")
        plan.size = byteCount("--size", *size, checkedRange);
    if (const auto leaveFree = line.value("--leave-free"))
        plan.leaveFree = byteCount("--leave-free", *leaveFree, freeRange);
    plan.isQuick = line.has("--quick");
    if (const auto again = line.value("--again")) {
        const double pause = seconds("--again", *again);
        if (pause > longestPause)
            throw UsageError(HostUsage::tr("%1 is a year at most").arg(isolated("--again")));
        plan.again = std::chrono::seconds(static_cast<std::int64_t>(pause));
    }
    plan.folder = folderTo(Purpose::check, line);
    return plan;
}

/// A check on a thread of its own, and what it tells.
class Check {
public:
    /// `mark` ends with the check.
    Check(const CapacityPlan& plan, RunEventLoop::EndMark mark) {
        m_course.begin(plan);
        m_worker = std::jthread([this, plan, mark = std::move(mark)](const std::stop_token& stop) mutable {
            try {
                m_result = CapacityCheck().run(plan, stop, [this](const CapacityProgress& progress) {
                    const std::lock_guard guard(m_lock);
                    m_course.take(progress);
                });
            } catch (...) {
                m_error = std::current_exception();
            }
            mark.reset();
        });
    }

    void requestStop() { m_worker.request_stop(); }
    QString line(LineStyle style) {
        const std::lock_guard guard(m_lock);
        return checkLine(m_course, style);
    }
    /// Waits. Absent: it was stopped. Fails: as CapacityCheck::run.
    std::optional<CapacityResult> result() {
        m_worker.join();
        try {
            if (m_error)
                std::rethrow_exception(m_error);
        } catch (const Cancelled&) {
            return std::nullopt;
        }
        return m_result;
    }
    /// After the end.
    const CapacityCourse& course() const { return m_course; }

private:
    std::mutex m_lock;
    CapacityCourse m_course; ///< guarded by the lock
    CapacityResult m_result; ///< like the error the worker's until its end
    std::exception_ptr m_error;
    std::jthread m_worker; ///< joined first: it uses the rest
};

void follow(Check& check, RunEventLoop& watch) {
    constexpr int frameMilliseconds = 200;
    const bool isShown = ProgressBar::isPossible();
    bool isStopping = false;
    for (;;) {
        switch (watch.wait(isShown ? frameMilliseconds : -1)) {
        case RunEventLoop::Event::ended:
            if (isShown)
                replaceLine({});
            return;
        case RunEventLoop::Event::terminationRequested:
            check.requestStop();
            isStopping = true;
            [[fallthrough]];
        case RunEventLoop::Event::frameDue:
            const LineStyle style = lineStyle(STDERR_FILENO);
            if (isShown)
                replaceLine(isStopping
                                ? beginningOf(HostCheck::tr("Stopping, removing the files"), style.columns)
                                : check.line(style));
        }
    }
}

void printRecord(const CapacityRecord& check, bool asJson) {
    if (!asJson)
        return print(capacityReport(check, lineStyle(STDOUT_FILENO)).toStdString());
    const EnglishTexts english;
    const auto json = checkJson(check);
    if (!json)
        throw std::runtime_error(HostCheck::tr("The check could not be told as JSON.").toStdString());
    print(json->toStdString() + "\n");
}

/// Checks to the end. Absent: it was stopped before it had written anything. Fails: as CapacityCheck::run.
std::optional<CapacityRecord> checked(const CapacityPlan& asked) {
    sweep(asked.folder);
    const RunPlace place = placeOf(asked.folder);
    const QDateTime date = QDateTime::currentDateTimeUtc();
    RunEventLoop watch;
    Check check(asked, watch.takeEndMark());
    follow(check, watch);
    if (const auto result = check.result())
        return CapacityRecord::from(*result, asked, place.volume, place.capabilities, date);
    const auto& last = check.course().last();
    if (!last)
        return std::nullopt;
    return CapacityRecord::fromStopped(*last, asked, place.volume, place.capabilities, date);
}

int executeCheck(const CommandLine& line) {
    const CapacityPlan asked = askedPlan(line);
    requireStandardOutput();
    std::optional<CapacityRecord> record;
    try {
        record = checked(asked);
    } catch (const std::exception& error) {
        complain(AnalyzerModel::describe(error).toStdString());
        return failed;
    }
    if (!record)
        return interrupted;
    printRecord(*record, line.has("--json"));
    return record->wasStopped ? interrupted : record->isBad() ? defectsFound : done;
}

constexpr std::array checkNotes{
    Note{"", QT_TRANSLATE_NOOP("HostHelp", "Writes files that differ in every block into a hidden folder "
                                           "inside FOLDER, reads them back past the system's\n"
                                           "cache, compares all of it, and removes them, also after Ctrl+C. "
                                           "No file of yours is touched; but on a device\n"
                                           "with a false capacity every write beyond its real size may "
                                           "destroy what lies there, as any use of it would.\n"
                                           "--quick writes samples only. Files of a killed check are removed "
                                           "by the next run or check in FOLDER.")},
    Note{"", QT_TRANSLATE_NOOP(
                 "HostHelp",
                 "BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024).")},
    Note{"", QT_TRANSLATE_NOOP("HostHelp", "Exit status: 0 nothing wrong was found, 1 failed, 2 wrong usage, "
                                           "3 defects were found, 130 stopped by a signal;\n"
                                           "what had been found until then is printed.")},
};

} // namespace

const Command checkCommand{
    .name = "check",
    .operands = "FOLDER",
    .summary = QT_TRANSLATE_NOOP("HostHelp",
                                 "Check whether a volume is as large as it says and keeps what it is given"),
    .options = checkOptions,
    .notes = checkNotes,
    .execute = &executeCheck};

} // namespace TarnwickHost
