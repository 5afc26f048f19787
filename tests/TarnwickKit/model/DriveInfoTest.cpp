#include "TarnwickKit/model/DriveInfo.h"

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

TEST(DriveInfo, OfNoDiskIsAbsent) {
    for (const char* path : {"/proc", "/no/such/path", ""})
        EXPECT_EQ(DriveInfo::identity(std::filesystem::path(path)), DriveIdentity()) << path;
}

TEST(DriveInfo, NamesTheProtocolsOfNetworkVolumes) {
    using Text = std::optional<QString>;
    for (const auto& [type, protocol] : std::vector<std::pair<Text, Text>>{{"smbfs", "SMB"},
                                                                           {"SMBFS", "SMB"},
                                                                           {"cifs", "SMB"},
                                                                           {"nfs", "NFS"},
                                                                           {"afpfs", "AFP"},
                                                                           {"WebDAV", "WebDAV"},
                                                                           {"ftp", "FTP"},
                                                                           {"exfat", std::nullopt},
                                                                           {"nfs4", std::nullopt},
                                                                           {" nfs", std::nullopt},
                                                                           {"", std::nullopt},
                                                                           {std::nullopt, std::nullopt}})
        EXPECT_EQ(DriveInfo::networkProtocol(type), protocol) << type.value_or("absent").toStdString();
}

} // namespace
