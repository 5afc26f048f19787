// How the model begins, and its words about a run: what goes on, why it failed, and the sidebar's figures.

#include "TarnwickKit/model/session/AnalyzerModel.h"

#include "OndelCore/benchmark/BenchmarkError.h"
#include "TarnwickKit/model/format/BenchmarkTestTitle.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/session/AnalyzerRun.h"
#include "TarnwickKit/model/session/PropertyChange.h"

#include <cstdlib>
#include <system_error>
#include <utility>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::benchmark::BenchmarkError;
using OndelCore::benchmark::BenchmarkTest;

namespace {

struct CauseInWords {
    QString operator()(const BenchmarkError::InsufficientSpace& cause) const {
        return u"Not enough space: needs %1, only %2 free."_s.arg(Format::bytes(cause.needed),
                                                                  Format::bytes(cause.available));
    }
    QString operator()(const BenchmarkError::Io& cause) const {
        return u"I/O error: "_s + QString::fromStdString(cause.text);
    }
    QString operator()(const BenchmarkError::NotWritable&) const {
        return u"Couldn’t write there. The volume may be read-only, or the folder may not allow it."_s;
    }
    QString operator()(const BenchmarkError::FileTooSmallForRandom&) const {
        return u"The test file is too small for the random block size."_s;
    }
};

} // namespace

AnalyzerModel::AnalyzerModel(AnalyzerServices services, QObject* parent)
    : AnalyzerSettings(parent)
    , m_services(std::move(services))
    , m_runStart(m_services.now())
    , m_history(std::make_unique<HistoryStore>(m_services.historyFolder)) {
    connect(this, &AnalyzerModel::selectedTestsChanged, this, &AnalyzerModel::announceCanRun);
    connect(this, &AnalyzerModel::randomBlockChanged, this, &AnalyzerModel::liveTestTitleChanged);
    connect(this, &AnalyzerModel::liveTestChanged, this, &AnalyzerModel::liveTestTitleChanged);
    connect(m_history.get(), &HistoryStore::runsChanged, this, &AnalyzerModel::previousRunsChanged);
    connect(m_history.get(), &HistoryStore::runsChanged, this, &AnalyzerModel::forgetMissingRuns);
    connect(m_history.get(), &HistoryStore::renamedElsewhere, this, &AnalyzerModel::showTitle);
    connect(this, &AnalyzerModel::currentRunChanged, this, &AnalyzerModel::previousRunsChanged);
}

bool AnalyzerModel::canRun() const { return m_targetFolder && !selectedTests().empty() && !isRunning(); }

void AnalyzerModel::announceCanRun() {
    changeProperty(*this, m_couldRun, canRun(), &AnalyzerModel::canRunChanged);
}

QString AnalyzerModel::liveTestName() const { return m_liveTest ? name(*m_liveTest) : QString(); }

QString AnalyzerModel::liveTestTitle() const {
    return m_liveTest ? title(*m_liveTest, randomBlock()) : QString();
}

QString AnalyzerModel::describe(const std::exception& error) {
    if (const auto* known = dynamic_cast<const BenchmarkError*>(&error))
        return std::visit(CauseInWords(), known->cause());
    if (const auto* system = dynamic_cast<const std::system_error*>(&error))
        return QString::fromStdString(system->code().message());
    return QString::fromUtf8(error.what());
}

std::optional<QString> AnalyzerModel::sidebarValue(BenchmarkTest test) const {
    if (!m_result)
        return std::nullopt;
    const auto show = [](const auto& part, auto&& figure) {
        return part ? std::optional<QString>(figure(*part)) : std::nullopt;
    };
    const auto sustained = [](const auto& part) { return Format::mbValue(part.sustainedBytesPerSecond()); };
    const auto iops = [](const auto& part) { return Format::compact(part.iops()); };
    switch (test) {
    case BenchmarkTest::sequentialWrite:
        return show(m_result->sequentialWrite, sustained);
    case BenchmarkTest::sequentialRead:
        return show(m_result->sequentialRead, sustained);
    case BenchmarkTest::randomRead:
        return show(m_result->randomRead, iops);
    case BenchmarkTest::randomWrite:
        return show(m_result->randomWrite, iops);
    case BenchmarkTest::fileOps:
        return show(m_result->fileOps,
                    [](const auto& part) { return Format::compact(part.create.opsPerSecond()); });
    }
    std::abort();
}

QStringList AnalyzerModel::sidebarValues() const {
    QStringList values;
    for (const BenchmarkTest test : OndelCore::benchmark::allBenchmarkTests)
        values.append(sidebarValue(test).value_or(QString()));
    return values;
}

} // namespace TarnwickKit::model
