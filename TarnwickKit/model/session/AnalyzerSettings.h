#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkTest.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <vector>

namespace TarnwickKit::model {

/// How to test: the part of AnalyzerModel that the views write directly. No value is refused or adjusted, and
/// none is saved.
///
/// Properties carry what a declarative view can bind to: a test is its raw value ("sequentialWrite"), and
/// bytes are doubles (exact to 2^53). The getters beside them carry the real types.
class ONDEL_PUBLIC AnalyzerSettings : public QObject {
    Q_OBJECT

public:
    explicit AnalyzerSettings(QObject* parent = nullptr);

    /// Index into BenchmarkSize::presets. Another index is a programming fault, which makePlan detects.
    Q_PROPERTY(int sizeIndex READ sizeIndex WRITE setSizeIndex NOTIFY sizeIndexChanged)
    int sizeIndex() const { return m_sizeIndex; }
    void setSizeIndex(int index);
    Q_SIGNAL void sizeIndexChanged();
    /// The labels of BenchmarkSize::presets.
    Q_PROPERTY(QList<QString> sizeLabels READ sizeLabels CONSTANT)
    static QStringList sizeLabels();
    /// The chosen size fills the disk. The views ask before such a run.
    Q_PROPERTY(bool isFillDisk READ isFillDisk NOTIFY sizeIndexChanged)
    bool isFillDisk() const;

    /// The tests to run, in the order of the tests.
    Q_PROPERTY(QStringList selectedTests READ selectedTestNames NOTIFY selectedTestsChanged)
    const std::set<OndelCore::benchmark::BenchmarkTest>& selectedTests() const { return m_selectedTests; }
    QStringList selectedTestNames() const;
    void setSelectedTests(std::set<OndelCore::benchmark::BenchmarkTest> tests);
    /// Fails: a name that is no test's raw value is a programming fault and stops the process.
    Q_INVOKABLE void setTestSelected(const QString& test, bool selected);
    Q_SIGNAL void selectedTestsChanged();
    /// All tests, in their order, and their names for people.
    Q_PROPERTY(QStringList tests READ testNames CONSTANT)
    static QStringList testNames();
    Q_PROPERTY(QStringList testTitles READ testTitles NOTIFY randomBlockChanged)
    QStringList testTitles() const;

    /// Block sizes. Units: bytes.
    Q_PROPERTY(double writeBlock READ writeBlockNumber WRITE setWriteBlockNumber NOTIFY writeBlockChanged)
    std::int64_t writeBlock() const { return m_writeBlock; }
    void setWriteBlock(std::int64_t bytes);
    Q_SIGNAL void writeBlockChanged();
    Q_PROPERTY(double readBlock READ readBlockNumber WRITE setReadBlockNumber NOTIFY readBlockChanged)
    std::int64_t readBlock() const { return m_readBlock; }
    void setReadBlock(std::int64_t bytes);
    Q_SIGNAL void readBlockChanged();
    Q_PROPERTY(double randomBlock READ randomBlockNumber WRITE setRandomBlockNumber NOTIFY randomBlockChanged)
    std::int64_t randomBlock() const { return m_randomBlock; }
    void setRandomBlock(std::int64_t bytes);
    Q_SIGNAL void randomBlockChanged();

    static constexpr std::array<std::int64_t, 5> baseBlockValues{4096, 65536, 262144, 1048576, 4194304};
    static constexpr std::array<std::int64_t, 4> randomBlockValues{4096, 8192, 16384, 65536};
    /// An entry of a block size menu. Units: bytes.
    struct BlockOption {
        QString label;
        std::int64_t value;
        bool operator==(const BlockOption&) const = default;
    };
    /// The block size that suits the target's file system. Units: bytes.
    std::optional<std::int64_t> optimalBlock() const { return m_optimalBlock; }
    /// The entries of the block size menus, ascending. They include the optimal size, which is marked.
    std::vector<BlockOption> blockOptions() const;
    static std::vector<BlockOption> randomBlockOptions();
    Q_PROPERTY(QList<QString> blockLabels READ blockLabels NOTIFY optimalBlockChanged)
    QStringList blockLabels() const;
    Q_PROPERTY(QList<double> blockValues READ blockValues NOTIFY optimalBlockChanged)
    QList<double> blockValues() const;
    Q_SIGNAL void optimalBlockChanged();
    Q_PROPERTY(QList<QString> randomBlockLabels READ randomBlockLabels CONSTANT)
    static QStringList randomBlockLabels();
    Q_PROPERTY(QList<double> randomBlockSizes READ randomBlockSizes CONSTANT)
    static QList<double> randomBlockSizes();

    /// Ask the system to keep the data file out of its cache.
    Q_PROPERTY(bool bypassCache READ bypassCache WRITE setBypassCache NOTIFY bypassCacheChanged)
    bool bypassCache() const { return m_bypassCache; }
    void setBypassCache(bool bypass);
    Q_SIGNAL void bypassCacheChanged();

    /// The plan for the current settings.
    OndelCore::benchmark::BenchmarkPlan makePlan() const;

protected:
    /// Sets the optimal block of a new target. It replaces the chosen sequential block sizes; without one
    /// they stay.
    void setOptimalBlock(std::optional<std::int64_t> bytes);

private:
    // The properties' views of the 64-bit numbers.
    double writeBlockNumber() const { return static_cast<double>(m_writeBlock); }
    double readBlockNumber() const { return static_cast<double>(m_readBlock); }
    double randomBlockNumber() const { return static_cast<double>(m_randomBlock); }
    void setWriteBlockNumber(double bytes) { setWriteBlock(static_cast<std::int64_t>(bytes)); }
    void setReadBlockNumber(double bytes) { setReadBlock(static_cast<std::int64_t>(bytes)); }
    void setRandomBlockNumber(double bytes) { setRandomBlock(static_cast<std::int64_t>(bytes)); }

    int m_sizeIndex = 1;
    std::set<OndelCore::benchmark::BenchmarkTest> m_selectedTests;
    std::int64_t m_writeBlock = 1048576;
    std::int64_t m_readBlock = 1048576;
    std::int64_t m_randomBlock = 4096;
    std::optional<std::int64_t> m_optimalBlock;
    bool m_bypassCache = true;
};

} // namespace TarnwickKit::model
