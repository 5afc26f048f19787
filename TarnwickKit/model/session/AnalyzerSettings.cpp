#include "TarnwickKit/model/session/AnalyzerSettings.h"

#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/format/VolumeText.h"
#include "TarnwickKit/model/session/PropertyChange.h"

#include <QCoreApplication>

#include <utility>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::benchmark::allBenchmarkTests;
using OndelCore::benchmark::BenchmarkPlan;
using OndelCore::benchmark::BenchmarkSize;
using OndelCore::benchmark::BenchmarkTest;

namespace {

struct SettingsText {
    Q_DECLARE_TR_FUNCTIONS(SettingsText)
};

const BenchmarkSize::Preset& preset(int index) {
    const auto& presets = BenchmarkSize::presets();
    if (index < 0 || static_cast<std::size_t>(index) >= presets.size())
        qFatal("sizeIndex %d is none of the %zu sizes", index, presets.size());
    return presets[static_cast<std::size_t>(index)];
}

QStringList names(const auto& tests) {
    QStringList names;
    for (const BenchmarkTest test : tests)
        names.append(name(test));
    return names;
}

std::vector<AnalyzerSettings::BlockOption> options(const auto& values, std::optional<std::int64_t> optimal) {
    std::vector<AnalyzerSettings::BlockOption> options;
    options.reserve(values.size());
    for (const std::int64_t value : values) {
        const QString size = Format::block(value);
        //: %1 is a size of blocks; it is the one that the volume prefers
        options.push_back({value == optimal ? SettingsText::tr("%1  ·  optimal").arg(size) : size, value});
    }
    return options;
}

QStringList labels(const std::vector<AnalyzerSettings::BlockOption>& options) {
    QStringList list;
    for (const auto& option : options)
        list.append(option.label);
    return list;
}

QList<double> values(const std::vector<AnalyzerSettings::BlockOption>& options) {
    QList<double> list;
    for (const auto& option : options)
        list.append(static_cast<double>(option.value));
    return list;
}

} // namespace

AnalyzerSettings::AnalyzerSettings(QObject* parent)
    : QObject(parent)
    , m_selectedTests(allBenchmarkTests.begin(), allBenchmarkTests.end()) {}

void AnalyzerSettings::setSizeIndex(int index) {
    changeProperty(*this, m_sizeIndex, index, &AnalyzerSettings::sizeIndexChanged);
}

QStringList AnalyzerSettings::sizeLabels() {
    QStringList labels;
    for (const auto& [label, size] : BenchmarkSize::presets())
        labels.append(testSizeText(QString::fromUtf8(label)));
    return labels;
}

bool AnalyzerSettings::isFillDisk() const { return preset(m_sizeIndex).size.asFillDisk() != nullptr; }

QStringList AnalyzerSettings::selectedTestNames() const { return names(m_selectedTests); }

void AnalyzerSettings::setSelectedTests(std::set<BenchmarkTest> tests) {
    changeProperty(*this, m_selectedTests, std::move(tests), &AnalyzerSettings::selectedTestsChanged);
}

void AnalyzerSettings::setTestSelected(const QString& test, bool selected) {
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

QStringList AnalyzerSettings::testNames() { return names(allBenchmarkTests); }

QStringList AnalyzerSettings::testTitles() const {
    QStringList titles;
    for (const BenchmarkTest test : allBenchmarkTests)
        titles.append(title(test, m_randomBlock));
    return titles;
}

void AnalyzerSettings::setWriteBlock(std::int64_t bytes) {
    changeProperty(*this, m_writeBlock, bytes, &AnalyzerSettings::writeBlockChanged);
}

void AnalyzerSettings::setReadBlock(std::int64_t bytes) {
    changeProperty(*this, m_readBlock, bytes, &AnalyzerSettings::readBlockChanged);
}

void AnalyzerSettings::setRandomBlock(std::int64_t bytes) {
    changeProperty(*this, m_randomBlock, bytes, &AnalyzerSettings::randomBlockChanged);
}

void AnalyzerSettings::setOptimalBlock(std::optional<std::int64_t> bytes) {
    changeProperty(*this, m_optimalBlock, bytes, &AnalyzerSettings::optimalBlockChanged);
    if (bytes) {
        setWriteBlock(*bytes);
        setReadBlock(*bytes);
    }
}

std::vector<AnalyzerSettings::BlockOption> AnalyzerSettings::blockOptions() const {
    std::set<std::int64_t> values(baseBlockValues.begin(), baseBlockValues.end());
    if (m_optimalBlock)
        values.insert(*m_optimalBlock);
    return options(values, m_optimalBlock);
}

std::vector<AnalyzerSettings::BlockOption> AnalyzerSettings::randomBlockOptions() {
    return options(randomBlockValues, std::nullopt);
}

QStringList AnalyzerSettings::blockLabels() const { return labels(blockOptions()); }

QList<double> AnalyzerSettings::blockValues() const { return values(blockOptions()); }

QStringList AnalyzerSettings::randomBlockLabels() { return labels(randomBlockOptions()); }

QList<double> AnalyzerSettings::randomBlockSizes() { return values(randomBlockOptions()); }

void AnalyzerSettings::setBypassCache(bool bypass) {
    changeProperty(*this, m_bypassCache, bypass, &AnalyzerSettings::bypassCacheChanged);
}

BenchmarkPlan AnalyzerSettings::makePlan() const {
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
