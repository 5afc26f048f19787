// How the model begins, and its words about a run: what goes on, why it failed, and the sidebar's figures.

#include "TarnwickKit/model/session/AnalyzerModel.h"

#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/session/AnalyzerRun.h"
#include "TarnwickKit/model/session/PropertyChange.h"

#include <utility>

namespace TarnwickKit::model {

using OndelCore::benchmark::BenchmarkTest;

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

QString AnalyzerModel::describe(const std::exception& error) { return model::describe(error); }

std::optional<QString> AnalyzerModel::sidebarValue(BenchmarkTest test) const {
    return m_result ? headline(*m_result, test) : std::nullopt;
}

QStringList AnalyzerModel::sidebarValues() const {
    QStringList values;
    for (const BenchmarkTest test : OndelCore::benchmark::allBenchmarkTests)
        values.append(sidebarValue(test).value_or(QString()));
    return values;
}

} // namespace TarnwickKit::model
