// What is to be tested and how: the target and the settings, which the views write directly.

#include "TarnwickKit/model/AnalyzerModel.h"

#include "TarnwickKit/model/AnalyzerRun.h"
#include "TarnwickKit/model/BenchmarkTestTitle.h"

#include <QFile>

#include <thread>
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

} // namespace

AnalyzerModel::AnalyzerModel(AnalyzerServices services, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_selectedTests(allBenchmarkTests.begin(), allBenchmarkTests.end())
    , m_runStart(m_services.now()) {}

QString AnalyzerModel::targetFolderText() const {
    return m_targetFolder ? QFile::decodeName(QByteArray::fromStdString(m_targetFolder->native()))
                          : QString();
}

void AnalyzerModel::select(const QUrl& folder) {
    if (folder.isLocalFile())
        select(std::filesystem::path(QFile::encodeName(folder.toLocalFile()).toStdString()));
}

void AnalyzerModel::select(const std::filesystem::path& folder) {
    if (isRunning())
        return;
    m_targetFolder = folder;
    Q_EMIT targetFolderChanged();
    announceCanRun();
    sweepOrphans(folder);
    setPhase(Phase::Idle);
    clearLiveSamples();
}

/// A thread of its own and not a pool's: on a mount that hangs it may never come back, and nothing, the end
/// of the process included, is to wait for it.
void AnalyzerModel::sweepOrphans(const std::filesystem::path& folder) {
    std::erase_if(m_sweeps, [](const auto& sweep) { return sweep.second.isFinished(); });
    QPromise<void> ended;
    ended.start();
    QFuture<void> previous = std::exchange(m_sweeps[folder], ended.future());
    std::thread([folder, previous, ended = std::move(ended), sweep = m_services.cleanupOrphans]() mutable {
        previous.waitForFinished();
        sweep(folder);
        ended.finish();
    }).detach();
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
