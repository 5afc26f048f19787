#include "TarnwickKit/model/session/DriveInfo.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace TarnwickKit::model;
using OndelCore::platform::DriveDescription;

namespace {

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
