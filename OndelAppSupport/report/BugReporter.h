#pragma once

#include "OndelAppSupport/InformationDictionary.h"
#include "OndelAppSupport/report/ReportError.h"

#include <QFuture>
#include <QString>
#include <QUrl>
#include <QVariantMap>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>

namespace OndelAppSupport {

/// Tells the maker's report service what went wrong, and on what kind of system.
/// Threads: any. `build` and `root` (where the system's files are found) are others only in tests.
class BugReporter {
public:
    using ReportError = OndelAppSupport::ReportError;

    /// What the user has to say.
    struct Report {
        bool isFeature = false; ///< a wish, not a fault
        QString summary;        ///< one line
        QString details;
        QString email;                      ///< where to answer, if anywhere
        bool attachDiagnostics = false;     ///< the user's choice
        std::optional<QString> diagnostics; ///< the text to send, once it was taken

        bool operator==(const Report&) const = default;
    };

    /// Where reports go, and for how long an answer is waited for.
    struct Service {
        QUrl endpoint;
        QString secret; ///< travels in one header of the request to `endpoint` and nowhere else
        std::chrono::milliseconds limit = std::chrono::seconds(60); ///< for the whole exchange
        /// Certificates of those who vouch for it, in PEM. Absent: the system's.
        std::optional<QByteArray> authorities = std::nullopt;

        /// The maker's, with the secret of this build; a build without one sends it empty.
        static Service maker();
    };

    /// What is sent. All values are texts. A wish never carries diagnostics.
    static QVariantMap payload(const Report& report);

    /// Sends the report once, to the endpoint alone: over verified TLS, following nobody elsewhere, and
    /// reading at most 1 MiB of an answer. Cancelling the future ends the exchange.
    /// Threads: main. Fails: ReportError, by the future.
    static QFuture<void> submit(const Report& report, const Service& service = Service::maker());

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
