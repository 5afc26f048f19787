#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/format/RemarkText.h"
#include "TarnwickKit/model/session/DriveInfo.h"
#include "TarnwickKit/model/session/SMARTReport.h"

#include <QStringList>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>

namespace TarnwickKit::model {

namespace {

const UserLocale english{"en_US", "en_US"};
const QDateTime noon(QDate(2024, 5, 1), QTime(12, 34, 56), QTimeZone::utc());
constexpr std::int64_t GiB = 1073741824;
constexpr std::int64_t TiB = 1024 * GiB;
constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct Case {
    QString text;
    const char* expected;
};

void expectAll(std::initializer_list<Case> cases) {
    for (const Case& each : cases)
        EXPECT_EQ(each.text.toStdString(), each.expected);
}

TEST(Formatter, Sizes) {
    const Formatter format(english);
    expectAll({
        {format.block(0), "0 B"},
        {format.block(1023), "1023 B"},
        {format.block(1024), "1 KiB"},
        {format.block(1536), "1.5 KiB"},
        {format.block(4096), "4 KiB"},
        {format.block(TiB), "1024 GiB"},
        {format.block(-4096), "-4096 B"},
        {format.block(std::numeric_limits<std::int64_t>::max()), "8589934592 GiB"},
        {title(OndelCore::benchmark::BenchmarkTest::randomWrite, 65536), "Random write (64 KiB)"},
        {format.bytes(1023), "1023 B"},
        {format.bytes(1024), "1.0 KiB"},
        {format.bytes(5 * GiB), "5.0 GiB"},
        {format.bytes(TiB), "1.0 TiB"},
        {format.bytes(2048 * TiB), "2048.0 TiB"},
        {format.bytes(-5 * GiB), "-5368709120 B"},
    });
}

TEST(Formatter, RatesAndCounts) {
    const Formatter format(english);
    expectAll({
        {format.mbValue(499999), "0"},
        {format.mbValue(500000), "1"},
        {format.mbValue(1234567890), "1,235"},
        {format.compact(950), "950"},
        {format.compact(999.6), "1000"},
        {format.compact(1000), "1.0k"},
        {format.compact(12345), "12.3k"},
        {format.compact(infinite), "infk"},
        {format.rate(999999999), "1000 MB/s"},
        {format.rate(1000000000), "1.00 GB/s"},
        {format.rate(2345000000), "2.35 GB/s"},
        {format.latency(0.00000083), "0.83 µs"},
        {format.latency(0.000081234), "81 µs"},
        {format.latency(0.00031234), "0.31 ms"},
        {format.latency(0.0012), "1.2 ms"},
        {format.latency(0.01234), "12 ms"},
        {format.latency(4.24), "4.2 s"},
        {format.grouped(1234567.9), "1,234,567"},
        {format.grouped(-1234.9), "-1,234"},
        // The exact value of the double is rounded, as in the C library: 0.15 is below, 0.25 exact.
        {format.bytes(1024 + 154), "1.2 KiB"},
        {format.compact(2.5), "2"},
        {format.compact(1150), "1.1k"},
        {format.compact(1250), "1.2k"},
    });
}

TEST(Formatter, UsesLocaleMarks) {
    const auto in = [](const char* locale) { return Formatter({locale, locale}); };
    expectAll({
        {in("de_DE").bytes(3 * GiB / 2), "1,5 GiB"},
        {in("de_DE").grouped(1234567), "1.234.567"},
        {in("fr_FR").grouped(1234567), "1\u00A0234\u00A0567"},
        {in("pl_PL").grouped(1234), "1234"},
        {in("en_IN").grouped(1234567), "12,34,567"},
        {in("ar_EG").compact(12345), "١٢٫٣k"},
        {in("ar_EG").block(1048576), "1 MiB"},
    });
}

TEST(Formatter, Stamps) {
    const QTimeZone utc = QTimeZone::utc();
    const QTimeZone tokyo("Asia/Tokyo");
    expectAll({
        {Formatter(english, utc).runStamp(noon, 62.5), "May 1, 2024 · 12:34 PM · 63s"},
        {Formatter(english, utc).shortStamp(noon), "May 1 · 12:34 PM"},
        {Formatter(english, tokyo).shortStamp(noon), "May 1 · 9:34 PM"},
        {Formatter({"en_US", "de_DE"}, utc).runStamp(noon, 12345.4), "1. Mai 2024 · 12:34 · 12345s"},
        {Formatter({"en_US", "fr_FR"}, utc).shortStamp(noon), "1 mai · 12:34"},
        {Formatter({"en_US", "ja_JP"}, tokyo).runStamp(noon, 1), "2024年5月1日 · 21:34 · 1s"},
    });
}

TEST(Formatter, DefaultsToTheMachinesZone) {
    for (const auto& [zone, stamp] :
         {std::pair("XYZ-5:30", "May 1 · 6:04 PM"), {"UTC", "May 1 · 12:34 PM"}}) {
        setenv("TZ", zone, 1);
        tzset();
        EXPECT_EQ(Formatter(english).shortStamp(noon), stamp);
    }
}

TEST(FormatterDeathTest, RejectsFiguresBeyondIntegers) {
    const Formatter format(english);
    EXPECT_DEATH(format.grouped(infinite), "not finite");
    EXPECT_DEATH(format.mbValue(notANumber), "not finite");
    EXPECT_DEATH(format.mbValue(1e25), "64 bits");
    EXPECT_DEATH(format.grouped(9223372036854775808.0), "64 bits");
    EXPECT_DEATH(format.runStamp(noon, -infinite), "not finite");
    EXPECT_EQ(format.grouped(-9223372036854775808.0), "-9,223,372,036,854,775,808");
}

TEST(UserLocale, TakesTheFirstVariableThatIsSet) {
    const auto locale = [](const char* all, const char* numeric, const char* time, const char* lang) {
        setenv("LC_ALL", all, 1);
        setenv("LC_NUMERIC", numeric, 1);
        setenv("LC_TIME", time, 1);
        setenv("LANG", lang, 1);
        return UserLocale::fromEnvironment();
    };
    EXPECT_EQ(locale("", "", "", "de_DE.UTF-8"), (UserLocale{"de_DE", "de_DE"}));
    EXPECT_EQ(locale("", "fr_FR.UTF-8", "en_DK.UTF-8", "de_DE"), (UserLocale{"fr_FR", "en_DK"}));
    EXPECT_EQ(locale("C.UTF-8", "fr_FR", "de_DE", "de_DE"), english);
    EXPECT_EQ(locale("", "", "", ""), english);
}

TEST(UserLocale, ReadsPosixNames) {
    std::string names;
    for (const char* posix :
         {"de_DE@euro", "pt_BR.ISO-8859-1", "sr_RS@latin", "eo", "POSIX", "%%&/_", "xx_YY"})
        names += OndelCore::platform::icuLocaleName(posix) + " ";
    EXPECT_EQ(names, "de_DE pt_BR sr_Latn_RS eo en_US en_US en_US ");
}

using OndelCore::health::DiskSMART;
using OndelCore::platform::DriveDescription;
using Status = DiskSMART::Status;

const QDateTime morning(QDate(2026, 3, 14), QTime(9, 26, 53), QTimeZone::utc());

std::string report(const DiskSMART& smart, const std::optional<QString>& drive, const char* locale) {
    const Formatter formatter({locale, locale}, QTimeZone::utc());
    return SMARTReport::text(smart, drive, morning, formatter).toStdString();
}

TEST(SMARTReport, AlignsEachBlock) {
    const DiskSMART smart{
        Status::verified,
        "NVMe",
        {{"Temperature", "38 °C", false}, {"Life used", "91%", true}, {"Spare available", "100%", false}}};
    EXPECT_EQ(report(smart, "ACME Drive X", "en_US"), R"(Ondel Tarnwick S.M.A.R.T. report

Drive:     ACME Drive X
Interface: NVMe
Date:      Mar 14, 2026 at 9:26 AM
Status:    Verified

Temperature:     38 °C
Life used:       91%  (attention)
Spare available: 100%
)");
}

TEST(SMARTReport, OmitsUnknownFacts) {
    EXPECT_EQ(report({Status::failing, "", {}}, std::nullopt, "de_DE"), R"(Ondel Tarnwick S.M.A.R.T. report

Date:   14. März 2026 um 09:26
Status: Failing

)");
    const std::string notSupported = report({}, std::nullopt, "ja_JP");
    EXPECT_NE(notSupported.find("2026年3月14日 9:26"), std::string::npos) << notSupported;
    EXPECT_NE(notSupported.find("Status: Verified"), std::string::npos) << notSupported;
}

TEST(SMARTReport, ProposesAValidFileName) {
    EXPECT_EQ(SMARTReport::fileName("Bus 1/Port:2", morning), "S.M.A.R.T. Bus 1-Port-2 2026-03-14.txt");
    EXPECT_EQ(SMARTReport::fileName(std::nullopt, morning), "S.M.A.R.T. Drive 2026-03-14.txt");
}

TEST(DriveInfo, JoinsTheTrimmedNamesAndPrefersTheBus) {
    struct Case {
        DriveDescription drive;
        DriveIdentity expected;
    };
    for (const Case& each : {
             Case{{" WDC \n", "\tPC SN730  ", "NVMe", "PCI"}, {"WDC PC SN730", "NVMe"}},
             Case{{" \n\t", "PC SN730", "", "SATA"}, {"PC SN730", "SATA"}},
             Case{{"Samsung", {}, " \n", "  "}, {"Samsung", {}}},
             Case{{"Samsung", "Samsung SSD 990", {}, {}}, {"Samsung Samsung SSD 990", {}}},
             Case{{{}, "My \xff stick", " USB ", "SCSI"}, {QString::fromUtf8("My \uFFFD stick"), "USB"}},
             Case{{}, {}},
         })
        EXPECT_EQ(DriveInfo::identity(each.drive), each.expected)
            << each.expected.model.value_or("none").toStdString();
}

TEST(DriveInfo, NamesNetworkProtocols) {
    QStringList protocols;
    for (const char* type :
         {"smbfs", "SMBFS", "cifs", "nfs", "afpfs", "WebDAV", "ftp", "exfat", "nfs4", " nfs", ""})
        protocols << DriveInfo::networkProtocol(QString(type)).value_or("absent");
    EXPECT_EQ(protocols.join(" "), "SMB SMB SMB NFS AFP WebDAV FTP absent absent absent absent");
    EXPECT_EQ(DriveInfo::networkProtocol(std::nullopt), std::nullopt);
}

using OndelCore::benchmark::BenchmarkTest;
using OndelCore::benchmark::Remark;
using OndelCore::benchmark::RemarkCode;
using OndelCore::benchmark::RemarkWeight;
using enum RemarkCode;

struct Spoken {
    RemarkCode code;
    std::vector<double> numbers;
    const char* sentence; ///< empty: the remark is left out
    std::optional<BenchmarkTest> test{};
};

Remark remarkOf(const Spoken& each) { return {each.code, RemarkWeight::note, each.test, each.numbers}; }

const std::vector<Spoken> sentences{
    {fromMemory, {0}, "0 % of what was read came from the disk.", BenchmarkTest::sequentialRead},
    {fromMemory,
     {0.8999},
     "At most 90 % of what was written reached the disk during the test.",
     BenchmarkTest::randomWrite},
    {fromMemory, {0.29}, "At most 29 % of what was read came from the disk.", BenchmarkTest::randomRead},
    {flushFailed,
     {5},
     "What was written could not all be flushed to the disk: Input/output error.",
     BenchmarkTest::sequentialWrite},
    {flushFailed, {5}, "The test file could not be flushed to the disk: Input/output error."},
    {cachedBelow, {}, "Data went through a cache although the system was asked to bypass it."},
    {speedFell, {1.9e9, 3.1e8, 45097156608}, "1.90 GB/s for the first 42.0 GiB, then 310 MB/s."},
    {gotHot,
     {71.4, 34.04, 75, 0.4},
     "The drive reached 71 °C after 34.0 s (limit 75 °C), and from then on the rate was 40 % lower."},
    {stalls, {3, 4.25}, "3 pauses over 1 s, the longest 4.2 s."},
    {stalls, {1, 1.5}, "One pause over 1 s: 1.5 s."},
    {otherTraffic, {1073741824}, "Others moved 1.0 GiB on the same disk during the test."},
    {slowLink, {4.8e8, 5e9, 2}, "The drive’s USB link runs at 480 Mbit/s; the drive could do 5.0 Gbit/s."},
    {misaligned, {3584, 4096}, "The partition begins 3.5 KiB into a physical block of 4 KiB."},
    {nearlyFull, {0.047}, "Only 4 % of the volume was free."},
    {smallTest, {1073741824, 17179869184}, "The test’s 1.0 GiB may fit into a cache of 16.0 GiB."},
    {powerSaving, {1}, "The machine ran on battery."},
    {powerSaving, {2}, "The processor was set to save power."},
    {powerSaving, {3}, "The machine ran on battery, its processor set to save power."},
    {notObservable, {}, "The disk behind this volume cannot be seen, so nothing shows what it did itself."},
    {inMemory, {}, "This volume keeps its files in memory; no disk was measured."},
    {fileOnDisk, {}, "This volume is a file on another volume."},
    {virtualDisk, {}, "The disk is one of a virtual machine, whose host may cache it."},
    {compresses, {}, "The file system compresses. The test’s data does not, so other files may be faster."},
    {copiesOnWrite, {1}, "The file system writes changes to new places and checksums data."},
    {journalsData, {}, "The file system writes data twice, to its journal first."},
    {throughPortal,
     {},
     "This folder was reached through the desktop’s portal, a program that is part of the figures."},
};

TEST(RemarkText, ASentenceForEachCode) {
    for (const Spoken& each : sentences)
        EXPECT_EQ(remarkSentence(remarkOf(each)).toStdString(), each.sentence);
    EXPECT_EQ(remarkAdvice({slowLink, {}, {}, {}}), QString("Try another port, slot or cable."));
    EXPECT_TRUE(remarkAdvice({virtualDisk, {}, {}, {}}).isEmpty());
}

/// Run files come from anywhere.
TEST(RemarkText, NumbersThatMakeNoSenseGiveNoSentence) {
    for (const Spoken& each : sentences) {
        Spoken changed = each;
        changed.numbers.push_back(1);
        EXPECT_TRUE(remarkSentence(remarkOf(changed)).isEmpty()) << rawValue(each.code);
        for (std::size_t index = 0; index < each.numbers.size(); ++index)
            for (const double nonsense : {-1.0, 1e300, std::numeric_limits<double>::infinity(),
                                          std::numeric_limits<double>::quiet_NaN()}) {
                changed = each;
                changed.numbers[index] = nonsense;
                EXPECT_TRUE(remarkSentence(remarkOf(changed)).isEmpty()) << rawValue(each.code) << nonsense;
            }
    }
    const std::vector<Spoken> impossible{
        {fromMemory, {0}, ""},         {fromMemory, {1.5}, "", BenchmarkTest::randomRead},
        {flushFailed, {0}, ""},        {flushFailed, {5.5}, ""},
        {flushFailed, {70000}, ""},    {gotHot, {71, 34, 75, 2}, ""},
        {slowLink, {1e9, 2e9, 3}, ""}, {slowLink, {1e9, 2e9, 0.5}, ""},
        {nearlyFull, {2}, ""},         {powerSaving, {4}, ""},
    };
    for (const Spoken& each : impossible)
        EXPECT_EQ(remarkSentence(remarkOf(each)).toStdString(), "") << rawValue(each.code);
}

} // namespace

} // namespace TarnwickKit::model
