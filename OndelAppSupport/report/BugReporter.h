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

/// Sends problem reports to the maker's report service, with facts about the system.
/// Threads: any. Only tests pass `build` and `root` (of the system's files).
class BugReporter {
public:
    using ReportError = OndelAppSupport::ReportError;

    /// What the user has entered.
    struct Report {
        bool isFeature = false; ///< a feature request, not a bug
        QString summary;        ///< one line
        QString details;
        QString email;                      ///< for an answer; may be empty
        bool attachDiagnostics = false;     ///< the user's choice
        std::optional<QString> diagnostics; ///< the text to send

        bool operator==(const Report&) const = default;
    };

    /// The address of the service and the limits of an exchange with it.
    struct Service {
        QUrl endpoint;
        QString secret; ///< sent in one header to `endpoint` and nowhere else
        std::chrono::milliseconds limit = std::chrono::seconds(60); ///< for the whole exchange
        /// Certificates of the trusted authorities, in PEM. Absent: the system's.
        std::optional<QByteArray> authorities = std::nullopt;

        /// The maker's, with the secret of this build, which may be empty.
        static Service maker();
    };

    /// The body of the request. All values are strings. A feature request never carries diagnostics.
    static QVariantMap payload(const Report& report);

    /// Sends the report once, over verified TLS, without following redirects, and reads at most 1 MiB of the
    /// answer. Cancelling the future ends the exchange. Threads: main. Fails: ReportError, by the future.
    static QFuture<void> submit(const Report& report, const Service& service = Service::maker());

    /// The report service.
    static QUrl endpoint();

    /// "1.2 (345)", with "?" for a value that the build lacks.
    static QString appVersion(const InformationDictionary& build = InformationDictionary::main());
    /// "Debian GNU/Linux 12 (bookworm)"; "Linux" for a system without a name.
    static QString osVersion(const std::filesystem::path& root = "/");
    /// The machine's name from its firmware, or "unknown".
    static QString hardwareModel(const std::filesystem::path& root = "/");
    /// The processor's name, or "unknown".
    static QString chip(const std::filesystem::path& root = "/");
    /// Units: binary gigabytes, to the nearest whole one.
    static std::int64_t memoryGB(const std::filesystem::path& root = "/");
    /// The processor family of this build: "x86_64".
    static QString architecture();
    /// Model, chip and memory on one line.
    static QString hardwareSummary(const std::filesystem::path& root = "/");

    /// Whether this build has the secret of the report service.
    static bool isConfigured(const InformationDictionary& build = InformationDictionary::main());

private:
    static QString sharedSecret(const InformationDictionary& build);
};

} // namespace OndelAppSupport
