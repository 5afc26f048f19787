#pragma once

#include "OndelAppSupport/InformationDictionary.h"

#include <QString>
#include <QUrl>

#include <cstdint>
#include <filesystem>

namespace OndelAppSupport {

/// Tells the maker's report service what went wrong, and on what kind of system.
/// Threads: any. `build` and `root` (where the system's files are found) are others only in tests.
class BugReporter {
public:
    /// The report service.
    static QUrl endpoint();

    /// "1.2 (345)"; a "?" stands for what the build does not say.
    static QString appVersion(const InformationDictionary& build = InformationDictionary::main());
    /// "Debian GNU/Linux 12 (bookworm)"; "Linux" for a system that does not give its name.
    static QString osVersion(const std::filesystem::path& root = "/");
    /// The machine as its firmware names it, or "unknown".
    static QString hardwareModel(const std::filesystem::path& root = "/");
    /// The processor's name, or "unknown".
    static QString chip(const std::filesystem::path& root = "/");
    /// Units: binary gigabytes, to the nearest whole one.
    static std::int64_t memoryGB(const std::filesystem::path& root = "/");
    /// The processor family of this build: "x86_64".
    static QString architecture();
    /// Model, chip and memory on one line.
    static QString hardwareSummary(const std::filesystem::path& root = "/");

    /// Whether this build was given the secret that the report service asks for.
    static bool isConfigured(const InformationDictionary& build = InformationDictionary::main());

private:
    static QString sharedSecret(const InformationDictionary& build);
};

} // namespace OndelAppSupport
