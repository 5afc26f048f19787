#include "TarnwickKit/model/session/SMARTReport.h"

#include "TarnwickKit/model/format/Format.h"

#include <QTimeZone>

#include <gtest/gtest.h>

namespace TarnwickKit::model {

namespace {

using OndelCore::health::DiskSMART;
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

} // namespace
} // namespace TarnwickKit::model
