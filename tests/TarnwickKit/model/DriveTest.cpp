// What is told of a drive: its names, and the report of its health.

#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/session/DriveInfo.h"
#include "TarnwickKit/model/session/SMARTReport.h"

#include <QStringList>
#include <QTimeZone>

#include <gtest/gtest.h>

namespace TarnwickKit::model {

namespace {

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

TEST(DriveInfo, IsAbsentWithoutADisk) {
    for (const char* path : {"/proc", "/no/such/path", ""})
        EXPECT_EQ(DriveInfo::identity(std::filesystem::path(path)), DriveIdentity()) << path;
}

TEST(DriveInfo, NamesNetworkProtocols) {
    QStringList protocols;
    for (const char* type :
         {"smbfs", "SMBFS", "cifs", "nfs", "afpfs", "WebDAV", "ftp", "exfat", "nfs4", " nfs", ""})
        protocols << DriveInfo::networkProtocol(QString(type)).value_or("absent");
    EXPECT_EQ(protocols.join(" "), "SMB SMB SMB NFS AFP WebDAV FTP absent absent absent absent");
    EXPECT_EQ(DriveInfo::networkProtocol(std::nullopt), std::nullopt);
}

} // namespace
} // namespace TarnwickKit::model
