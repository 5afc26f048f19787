// How to test: the settings, which the views write directly, and the plan that they make.

#include "TarnwickKit/model/AnalyzerModel.h"

#include "TarnwickKit/model/AnalyzerRun.h"
#include "TarnwickKit/model/BenchmarkTestTitle.h"

#include <utility>

namespace TarnwickKit::model {

using OndelCore::benchmark::allBenchmarkTests;
using OndelCore::benchmark::BenchmarkPlan;
using OndelCore::benchmark::BenchmarkSize;
using OndelCore::benchmark::BenchmarkTest;

namespace {

QString name(BenchmarkTest test) {
    const std::string_view raw = OndelCore::benchmark::rawValue(test);
    return QString::fromLatin1(raw.data(), static_cast<qsizetype>(raw.size()));
}

const BenchmarkSize::Preset& preset(int index) {
    const auto& presets = BenchmarkSize::presets();
    if (index < 0 || static_cast<std::size_t>(index) >= presets.size())
        qFatal("sizeIndex %d is none of the %zu sizes", index, presets.size());
    return presets[static_cast<std::size_t>(index)];
}

QStringList labels(const std::vector<AnalyzerModel::BlockOption>& options) {
    QStringList list;
    for (const auto& option : options)
        list.append(option.label);
    return list;
}

QList<double> values(const std::vector<AnalyzerModel::BlockOption>& options) {
    QList<double> list;
    for (const auto& option : options)
        list.append(static_cast<double>(option.value));
    return list;
}

} // namespace

AnalyzerModel::AnalyzerModel(AnalyzerServices services, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_selectedTests(allBenchmarkTests.begin(), allBenchmarkTests.end())
    , m_runStart(m_services.now())
    , m_history(std::make_unique<HistoryStore>(m_services.historyFolder)) {
    connect(m_history.get(), &HistoryStore::runsChanged, this, &AnalyzerModel::previousRunsChanged);
    connect(this, &AnalyzerModel::currentRunChanged, this, &AnalyzerModel::previousRunsChanged);
}

void AnalyzerModel::setSizeIndex(int index) {
    if (std::exchange(m_sizeIndex, index) != index)
        Q_EMIT sizeIndexChanged();
}

QStringList AnalyzerModel::sizeLabels() {
    QStringList labels;
    for (const auto& [label, size] : BenchmarkSize::presets())
        labels.append(QString::fromUtf8(label.data(), static_cast<qsizetype>(label.size())));
    return labels;
}

bool AnalyzerModel::isFillDisk() const { return preset(m_sizeIndex).size.asFillDisk() != nullptr; }

QStringList AnalyzerModel::selectedTestNames() const {
    QStringList names;
    for (const BenchmarkTest test : m_selectedTests)
        names.append(name(test));
    return names;
}

void AnalyzerModel::setSelectedTests(std::set<BenchmarkTest> tests) {
    if (m_selectedTests == tests)
        return;
    m_selectedTests = std::move(tests);
    Q_EMIT selectedTestsChanged();
    announceCanRun();
}

void AnalyzerModel::setTestSelected(const QString& test, bool selected) {
    const auto known = OndelCore::benchmark::benchmarkTest(test.toStdString());
    if (!known)
        qFatal("\"%s\" names no test", qUtf8Printable(test));
    auto tests = m_selectedTests;
    if (selected)
        tests.insert(*known);
    else
        tests.erase(*known);
    setSelectedTests(std::move(tests));
}

QStringList AnalyzerModel::testNames() {
    QStringList names;
    for (const BenchmarkTest test : allBenchmarkTests)
        names.append(name(test));
    return names;
}

QStringList AnalyzerModel::testTitles() const {
    QStringList titles;
    for (const BenchmarkTest test : allBenchmarkTests)
        titles.append(title(test, m_randomBlock));
    return titles;
}

void AnalyzerModel::setWriteBlock(std::int64_t bytes) {
    if (std::exchange(m_writeBlock, bytes) != bytes)
        Q_EMIT writeBlockChanged();
}

void AnalyzerModel::setReadBlock(std::int64_t bytes) {
    if (std::exchange(m_readBlock, bytes) != bytes)
        Q_EMIT readBlockChanged();
}

void AnalyzerModel::setRandomBlock(std::int64_t bytes) {
    if (std::exchange(m_randomBlock, bytes) == bytes)
        return;
    Q_EMIT randomBlockChanged();
    Q_EMIT liveTestTitleChanged();
}

QStringList AnalyzerModel::blockLabels() const { return labels(blockOptions()); }

QList<double> AnalyzerModel::blockValues() const { return values(blockOptions()); }

QStringList AnalyzerModel::randomBlockLabels() { return labels(randomBlockOptions()); }

QList<double> AnalyzerModel::randomBlockSizes() { return values(randomBlockOptions()); }

void AnalyzerModel::setBypassCache(bool bypass) {
    if (std::exchange(m_bypassCache, bypass) != bypass)
        Q_EMIT bypassCacheChanged();
}

bool AnalyzerModel::canRun() const { return m_targetFolder && !m_selectedTests.empty() && !isRunning(); }

void AnalyzerModel::announceCanRun() {
    const bool can = canRun();
    if (std::exchange(m_couldRun, can) != can)
        Q_EMIT canRunChanged();
}

QString AnalyzerModel::liveTestName() const { return m_liveTest ? name(*m_liveTest) : QString(); }

QString AnalyzerModel::liveTestTitle() const {
    return m_liveTest ? title(*m_liveTest, m_randomBlock) : QString();
}

BenchmarkPlan AnalyzerModel::makePlan() const {
    BenchmarkPlan plan;
    plan.tests = m_selectedTests;
    plan.size = preset(m_sizeIndex).size;
    plan.writeBlockSize = m_writeBlock;
    plan.readBlockSize = m_readBlock;
    plan.randomBlockSize = m_randomBlock;
    plan.randomOpCount = 10000;
    plan.fileOpCount = 1000;
    plan.bypassCache = m_bypassCache;
    plan.sampleInterval = 0.02;
    return plan;
}

} // namespace TarnwickKit::model
