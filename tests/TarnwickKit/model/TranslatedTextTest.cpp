#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/health/DiskHealth.h"
#include "SampleRun.h"
#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/format/HealthText.h"
#include "TarnwickKit/model/format/RemarkText.h"
#include "TarnwickKit/model/format/TextLines.h"
#include "TarnwickKit/model/format/VolumeText.h"
#include "TarnwickKit/model/runs/Comparison.h"
#include "TarnwickKit/model/runs/FiguresText.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunExport.h"
#include "TarnwickKit/model/runs/RunText.h"
#include "TarnwickKit/model/session/AnalyzerSettings.h"
#include "TarnwickKit/model/session/SMARTReport.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTranslator>

#include <gtest/gtest.h>

#include <cerrno>
#include <system_error>

namespace TarnwickKit::model {

namespace {

using namespace OndelCore::benchmark;
using OndelCore::health::DiskHealth;
using OndelCore::health::DiskSMART;

/// A catalogue with every text, of which each translation is the source in quotes.
class QuotingTranslator : public QTranslator {
public:
    QuotingTranslator() { QCoreApplication::installTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* /*context*/, const char* source, const char* /*disambiguation*/,
                      int /*count*/) const override {
        return QStringLiteral("«%1»").replace("%1", QString::fromUtf8(source));
    }
};

/// What remains of a text without the translated parts, figures, units and marks between them; "" for a text
/// that is translated whole.
std::string untranslated(QString text) {
    static const QRegularExpression innermost("«[^«»]*»");
    while (text.contains(innermost))
        text.remove(innermost);
    static const QRegularExpression figures(
        R"([\d.,%]+k?|°C|\b(?:B|KiB|MiB|GiB|TB|TiB|MB/s|GB/s|IOPS|s|ms|min|h|R/W)\b|µs|[-·:;+()!|\s])");
    return text.remove(figures).toStdString();
}

const Remark remarksOfAllKinds[] = {
    {RemarkCode::fromMemory, RemarkWeight::invalid, BenchmarkTest::sequentialRead, {0}},
    {RemarkCode::fromMemory, RemarkWeight::invalid, BenchmarkTest::sequentialWrite, {0.25}},
    {RemarkCode::flushFailed, RemarkWeight::invalid, std::nullopt, {5}},
    {RemarkCode::cachedBelow, RemarkWeight::caution, std::nullopt, {}},
    {RemarkCode::speedFell, RemarkWeight::caution, BenchmarkTest::sequentialWrite, {2e9, 4e8, 3e10}},
    {RemarkCode::gotHot, RemarkWeight::caution, BenchmarkTest::sequentialWrite, {85, 12, 84, 0.4}},
    {RemarkCode::stalls, RemarkWeight::caution, BenchmarkTest::sequentialWrite, {1, 2.5}},
    {RemarkCode::stalls, RemarkWeight::caution, BenchmarkTest::sequentialWrite, {3, 2.5}},
    {RemarkCode::otherTraffic, RemarkWeight::note, BenchmarkTest::sequentialWrite, {3e9}},
    {RemarkCode::misaligned, RemarkWeight::note, std::nullopt, {512, 4096}},
    {RemarkCode::nearlyFull, RemarkWeight::note, std::nullopt, {0.04}},
    {RemarkCode::smallTest, RemarkWeight::note, std::nullopt, {1e9, 4e9}},
    {RemarkCode::powerSaving, RemarkWeight::note, std::nullopt, {1}},
    {RemarkCode::powerSaving, RemarkWeight::note, std::nullopt, {3}},
    {RemarkCode::notObservable, RemarkWeight::note, std::nullopt, {}},
    {RemarkCode::inMemory, RemarkWeight::note, std::nullopt, {}},
    {RemarkCode::fileOnDisk, RemarkWeight::note, std::nullopt, {}},
    {RemarkCode::virtualDisk, RemarkWeight::note, std::nullopt, {}},
    {RemarkCode::compresses, RemarkWeight::note, std::nullopt, {}},
    {RemarkCode::copiesOnWrite, RemarkWeight::note, std::nullopt, {0}},
    {RemarkCode::copiesOnWrite, RemarkWeight::note, std::nullopt, {1}},
    {RemarkCode::journalsData, RemarkWeight::note, std::nullopt, {}},
    {RemarkCode::throughPortal, RemarkWeight::caution, std::nullopt, {}},
};

OndelCore::health::OndelSMART everyFigure() {
    OndelCore::health::OndelSMART record;
    record.available = record.failing = 1;
    record.critical_warning = 0x1f;
    record.has_temperature = record.has_percent_used = record.has_spare = record.has_power_on_hours =
        record.has_power_cycles = record.has_nvme_counters = record.has_data_written = record.has_data_read =
            record.has_host_commands = record.has_busy_minutes = record.has_reallocated = record.has_pending =
                record.has_uncorrectable = record.has_reported_uncorrectable = record.has_crc_errors =
                    record.has_spin_retries = record.has_load_cycles = 1;
    record.spare_threshold = 5;
    record.power_on_hours = 300;
    record.busy_minutes = 60 * 9000;
    return record;
}

TEST(TranslatedText, RemarksAreWholeSentences) {
    const QuotingTranslator catalogue;
    for (const Remark& remark : remarksOfAllKinds) {
        const QString sentence = remarkSentence(remark);
        const QString advice = remarkAdvice(remark);
        EXPECT_TRUE(sentence.startsWith("«") && sentence.endsWith(u"»")) << sentence.toStdString();
        EXPECT_FALSE(sentence.contains('%') && sentence.contains(QRegularExpression("%\\d")))
            << sentence.toStdString();
        EXPECT_EQ(untranslated(advice), "");
        EXPECT_EQ(untranslated(remarkWeightWord(remark.weight)), "");
    }
}

TEST(TranslatedText, ErrorsAreWholeSentences) {
    const QuotingTranslator catalogue;
    const BenchmarkError::Cause causes[] = {
        BenchmarkError::InsufficientSpace{5368709120, 1073741824}, BenchmarkError::NotWritable{},
        BenchmarkError::FileTooSmallForRandom{}, BenchmarkError::Io{"write: 5", EIO}};
    for (const auto& cause : causes) {
        const QString text = describe(BenchmarkError(cause));
        EXPECT_TRUE(text.startsWith("«") && text.endsWith(u"»")) << text.toStdString();
    }
    for (const int error : {ENOENT, ENODEV, EIO, EROFS, ENOSPC, EFBIG, EACCES, ENOMEM, EMFILE})
        EXPECT_EQ(untranslated(explain(std::system_error(error, std::generic_category()))), "") << error;
    EXPECT_EQ(refusal({"a.tarnwickrun"}, true), "«“a.tarnwickrun” is damaged or not a Tarnwick run.»");
    EXPECT_EQ(refusal({"a", "b"}, false),
              "«“a” and 1 more are not folders or run files that can be opened.»");
}

/// The engine's texts are English; a changed one would be shown so.
TEST(TranslatedText, HealthIsNotEnglish) {
    const QuotingTranslator catalogue;
    DiskSMART smart = DiskHealth::smart(everyFigure());
    EXPECT_EQ(smart.attributes.size(), 22U);
    smart.attributes.push_back({"sdb · Status", "Verified", false});
    smart.attributes.push_back({"Disks", "2 of 3 disks answered", false});
    for (const DiskSMART::Attribute& row : smart.attributes) {
        EXPECT_EQ(untranslated(healthLabel(row).remove("sdb")), "");
        EXPECT_EQ(untranslated(healthValue(row)), "");
    }
    EXPECT_EQ(healthLabel({"sdb · Status", "Verified", false}), u"sdb · «Status»");
    EXPECT_EQ(healthValue({"Power-on time", "12 days", false}), "«12 days»");
    for (const QString& line : SMARTReport::text(smart, "ACME X", QDateTime()).split('\n'))
        EXPECT_TRUE(line.contains(u"Date") || line.contains("ACME X") || line.contains("sdb") ||
                    untranslated(line).empty())
            << line.toStdString();
}

TEST(TranslatedText, SourcesOfHealthAreSentencesOfTheirOwn) {
    const QuotingTranslator catalogue;
    struct {
        const char* english;
        const char* shown;
    } const cases[] = {
        {"no disk is behind tmpfs", "«no disk is behind tmpfs»"},
        {"sda is asleep and was left alone", "«sda is asleep and was left alone»"},
        {"UDisks2 does not answer for sda", "«UDisks2 does not answer for sda»"},
        {"UDisks2 for sda, read 7 min ago", "«UDisks2 for sda, read 7 min ago»"},
        {"ATA S.M.A.R.T. of sda, which gave its verdict without figures",
         "«ATA S.M.A.R.T. of sda, which gave its verdict without figures»"},
        {"sda may only be asked by an administrator, and UDisks2 2.9.4 does not read the health of NVMe "
         "drives (version 2.10 does)",
         "««sda may only be asked by an administrator», and «UDisks2 2.9.4 does not read the health of NVMe "
         "drives (version 2.10 does)»»"},
        {"1 of 3 disks answered: sda does not answer; sdb has no S.M.A.R.T., or it is switched off",
         "««1 of 3 disks answered»: ««sda does not answer»; «sdb has no S.M.A.R.T., or it is switched "
         "off»»»"},
        {"words that nobody knows", "words that nobody knows"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(healthSource(each.english).toStdString(), each.shown) << each.english;
}

/// Japanese and Chinese have no blanks.
TEST(TranslatedText, SentencesGoOnBelow) {
    EXPECT_EQ(wrapped("注意  ", "ディスクは ok です。", 16), "注意  ディスクは\n      ok です。\n");
    EXPECT_EQ(wrapped({}, "全部写好了，没有错。", 12), "全部写好了，\n没有错。\n");
    EXPECT_EQ(wrapped("- ", "All is well-known", 10), "- All is\n  well-kn…\n");
}

TEST(TranslatedText, RunsAreShownInTheUsersLanguageAndKeptInEnglish) {
    RunRecord run = fullRun();
    run.volumeName = "-";
    run.deviceModel = run.deviceProtocol = run.fsType = run.kernel = run.version = "-";
    run.customTitle.reset();
    run.sizeLabel = "Fill disk";
    run.remarks.emplace(std::begin(remarksOfAllKinds), std::end(remarksOfAllKinds));
    const auto file = encodeRun(run);
    const QByteArray csv = csvTable({run});
    const QuotingTranslator catalogue;
    EXPECT_EQ(encodeRun(run), file);
    EXPECT_EQ(csvTable({run}), csv);
    RunRecord fresh = RunRecord::from({}, OndelCore::volumes::VolumeInfo(), std::nullopt, run.date, {});
    EXPECT_EQ(fresh.connection, "External");

    EXPECT_EQ(untranslated(ComparisonChart::parameterSummary(run)), "");
    EXPECT_EQ(untranslated(connectionText("Removable") + volumeNameText("Volume")), "");
    EXPECT_EQ(volumeNameText("Backup"), "Backup");
    EXPECT_EQ(untranslated(AnalyzerSettings::sizeLabels().join(' ')), "");
    for (const CompareMetric& metric : ComparisonChart::activeMetrics({run}))
        EXPECT_EQ(untranslated(metric.label + metric.unit), "") << metric.label.toStdString();
    const QStringList texts[] = {runTexts({run}, {.columns = 1000}).split('\n'),
                                 markdownTable({run}).remove('\\').split('\n'), figuresText(run).split('\n')};
    for (const QStringList& lines : texts)
        for (const QString& line : lines)
            EXPECT_TRUE(line.contains("2024") || line.contains("Linux") || untranslated(line).empty())
                << line.toStdString() << " keeps " << untranslated(line);
}

} // namespace

} // namespace TarnwickKit::model
